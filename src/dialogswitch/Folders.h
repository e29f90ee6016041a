#pragma once

#include "result/HarmlessLine.h"
#include "result/Message.h"

#include <string>

namespace vantorel {

/// The message for a file or folder that cannot be written. The host reports the system's reason.
[[nodiscard]] inline Message writeFailure(const std::string& path)
{
    return {phrase("\"%1\" cannot be written", excerpt(path)),
            phrase("check that you can write to its folder")};
}

}  // namespace vantorel
