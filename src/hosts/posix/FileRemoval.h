#pragma once

#include <string>

namespace vantorel {

/// Removes a file, or a link at its path, not what that leads to. True where nothing stands there
/// in the end. No part of `HostFiles`, because pages cannot remove files.
[[nodiscard]] bool removeFile(const std::string& path);

}  // namespace vantorel
