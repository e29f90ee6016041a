#pragma once

#include "colorlists/PaletteFolder.h"

#include <vector>

namespace vantorel {

/// The folders where other programs keep palettes, and where ours are installed, below the base
/// directories of the host's files. A host without base directories has none.
class PalettePlaces {
public:
    /// `files` must outlive this object.
    PalettePlaces(HostFiles& files, PaletteFolder::Log log);

    struct Folder {
        /// The display name of the program.
        std::u16string program;
        PaletteFolder palettes;
    };

    /// Returns whether the folders, or the file names in them, may have changed since the last
    /// refresh.
    [[nodiscard]] bool haveChanged() const;
    /// Refreshes the folders from the disk, but not their files.
    void refreshFolders();
    /// The folders, most important first: the user's before the system's, those of a program's
    /// newer version before those of an older one. They include folders that do not exist.
    [[nodiscard]] const std::vector<std::unique_ptr<Folder>>& folders() const { return _folders; }

private:
    /// A folder whose subfolders are named by a program's versions.
    struct VersionsFolder {
        std::string path;
        std::uint64_t version;
    };

    [[nodiscard]] bool haveVersionsChanged() const;
    void findFolders();

    HostFiles& _hostFiles;
    PaletteFolder::Log _log;
    bool _hasLooked = false;
    std::vector<VersionsFolder> _versionsFolders;
    std::vector<std::unique_ptr<Folder>> _folders;
};

/// Orders the names of a program's versions, newest first. Numbers between dots are compared as
/// numbers ("2.10" before "2.9"). Names that are not versions come last.
[[nodiscard]] bool isNewerVersion(std::string_view left, std::string_view right);

}  // namespace vantorel
