#pragma once

#include <set>
#include <string>
#include <string_view>

/// Atomic writing: readers see either the old file or the complete new one.
namespace vantorel {

struct AtomicWrite {
    /// Who may read a newly created file: only the user, or everyone whom the process's umask
    /// permits.
    enum class Readers { userAlone, usual };
    /// Whether an existing file is replaced or is an error (EEXIST).
    enum class Existing { replaced, refused };

    Readers readers = Readers::userAlone;
    Existing existing = Existing::replaced;
};

class AtomicWriter {
public:
    /// Writes a new file in the same folder, synchronises it with the disk, and renames it. Returns
    /// 0, or the `errno` of the step that failed. In that case the target is unchanged and the new
    /// file has been removed.
    ///
    /// The new file takes over the permissions of the file it replaces, and its owner and group as
    /// far as the process may set them. If replacing is allowed, a symbolic link is followed and
    /// kept: people use links to keep their settings in another folder. Circular links, and targets
    /// that are not regular files, are errors.
    ///
    /// The first write into a folder also removes temporary files that killed processes have left
    /// there.
    [[nodiscard]] int write(const std::string& path, std::string_view bytes, AtomicWrite manner);

private:
    std::set<std::string> _tidiedFolders;
};

/// Returns the folder that contains a path; "." if the path has no slash.
[[nodiscard]] std::string folderOfPath(const std::string& path);

/// Synchronises a folder with the disk, so that files created or renamed in it survive a crash.
/// Errors are ignored, because not every file system supports this.
void synchronizeFolder(const std::string& path);

}  // namespace vantorel
