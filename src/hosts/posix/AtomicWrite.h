#pragma once

#include <set>
#include <string>
#include <string_view>

/// Whole files that take their place at once.
namespace vantorel {

struct AtomicWrite {
    /// Who may read a file that has not been there before: the user alone, or whom the process's
    /// file mode creation mask leaves.
    enum class Readers { userAlone, usual };
    /// Whether a file that stands there is replaced, or is an error (EEXIST).
    enum class Existing { replaced, refused };

    Readers readers = Readers::userAlone;
    Existing existing = Existing::replaced;
};

class AtomicWriter {
public:
    /// Writes a new file in the same folder, synchronises it with the disk, and renames it. 0, or
    /// the error number of the step that failed, with nothing changed and nothing left behind.
    ///
    /// A file that is replaced hands its permissions on, and its owner and group as far as the
    /// process may set them. A symbolic link is followed, and stays, unless nothing may be
    /// replaced: people keep their settings in another folder that way, and a file in the place of
    /// the link would part the two. Links that lead in a circle, and what is no regular file, are
    /// errors.
    ///
    /// The first write into a folder also removes the new files that processes which were killed
    /// have left there.
    [[nodiscard]] int write(const std::string& path, std::string_view bytes, AtomicWrite manner);

private:
    std::set<std::string> _tidiedFolders;
};

/// The folder that a path is in.
[[nodiscard]] std::string folderOfPath(const std::string& path);

/// Makes a change of the names in a folder last, as far as the disk can promise that.
void synchronizeFolder(const std::string& path);

}  // namespace vantorel
