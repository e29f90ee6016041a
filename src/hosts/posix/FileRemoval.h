#pragma once

#include <string>

namespace vantorel {

/// Removes a file. A symbolic link is removed itself, not its target. Returns true if the path does
/// not exist afterwards. This is not part of `HostFiles`, because pages must not remove files.
[[nodiscard]] bool removeFile(const std::string& path);

/// Removes a folder if it is empty. Returns true if the path does not exist afterwards.
bool removeEmptyFolder(const std::string& path);

}  // namespace vantorel
