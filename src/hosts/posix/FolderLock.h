#pragma once

#include "host/HostFiles.h"
#include "hosts/posix/SystemCalls.h"

#include <chrono>
#include <memory>
#include <string>

namespace vantorel {

/// The lock of a folder: an open-file-description lock on the hidden file ".vantorel-lock" in it.
///
/// The system releases the lock when its holder ends, even if it is killed. The holder removes the
/// file before it releases the lock, so nothing stays in the user's folder; a file that a killed
/// process has left is used, and removed, by the next holder. Whoever gets the lock checks that the
/// file still has its name, and otherwise tries again with the file that now has it.
///
/// Everyone who can write to the folder can open the file, whoever has created it.
class FolderLock final : public HostFolderLock {
public:
    /// Long enough for twenty busy programs, short enough for a user who waits.
    static constexpr std::chrono::milliseconds usualPatience{5000};

    struct Taking {
        /// Null if there is an error.
        std::shared_ptr<HostFolderLock> lock;
        /// `ETIMEDOUT` if another process keeps the lock for too long.
        int error = 0;
    };
    /// Waits for the lock at most for `patience`. Returns a lock that excludes nobody if the folder
    /// does not exist, cannot be written to (then neither can its files), or is on a file system
    /// without locks: work there is as safe as it is without this class.
    [[nodiscard]] static Taking take(const std::string& folder,
                                     std::chrono::milliseconds patience = usualPatience);

    /// Takes over a file that is locked and has this path.
    FolderLock(std::string path, Descriptor file);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock() override;

private:
    std::string _path;
    Descriptor _file;
};

}  // namespace vantorel
