#pragma once

#include "text/HexDigits.h"

#include <cstdint>

namespace vantorel {

/// The letter case of hex texts. The numbers are fixed. Any other value may be stored; it is
/// written in lower case.
enum class EntryForm : std::int32_t { uppercase = 10, lowercase = 20 };

[[nodiscard]] constexpr HexCase hexCaseOf(EntryForm entryForm)
{
    return entryForm == EntryForm::uppercase ? HexCase::upper : HexCase::lower;
}

}  // namespace vantorel
