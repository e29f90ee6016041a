#pragma once

#include "hosts/posix/PosixFiles.h"
#include "result/Result.h"

#include <string>
#include <vector>

namespace vantorel {

/// The message for a file or folder that cannot be written. The host reports the system's reason.
[[nodiscard]] Message writeFailure(const std::string& path);

/// A folder and those above it, as far as they do not exist, the outermost first.
[[nodiscard]] std::vector<std::string> missingFolders(const PosixFiles& files,
                                                      const std::string& folder);
/// Makes a folder and those above it that are missing.
[[nodiscard]] Status createFolders(PosixFiles& files, const std::string& folder);

}  // namespace vantorel
