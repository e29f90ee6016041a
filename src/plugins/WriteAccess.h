#pragma once

#include "result/Result.h"

#include <sys/stat.h>

#include <string>

namespace vantorel {

inline constexpr uid_t administrator = 0;

/// A file or folder whose owner is known to be trusted.
struct OwnedFile {
    /// Leads to the file.
    const std::string& path;
    /// Its name in messages.
    const std::string& shownPath;
    const struct stat& status;
};

/// Fails if others than the owner, the administrator and `user` can write to a file or folder, by
/// its mode or its access-control list. The groups that `openTrusted` allows may write.
[[nodiscard]] Status checkThatOthersCannotWrite(const OwnedFile& file, uid_t user);

}  // namespace vantorel
