#pragma once

#include "colorlists/PaletteFolder.h"

#include <vector>

namespace vantorel {

/// The folders where other programs keep palettes, under the base directories of a host's files. A
/// host without base directories has none.
class PalettePlaces {
public:
    /// `files` must outlive this object.
    PalettePlaces(HostFiles& files, PaletteFolder::Log log);

    struct Folder {
        /// What people call the program.
        std::u16string program;
        PaletteFolder palettes;
    };

    /// Whether folders, or names in them, may be others than at the last look.
    [[nodiscard]] bool haveChanged() const;
    /// Brings the folders and their files in step with the disk.
    void lookAgain();
    /// The most important first: the user's before the system's, those of a program's newer version
    /// before those of an older one. Among them are folders that do not exist.
    [[nodiscard]] const std::vector<std::unique_ptr<Folder>>& folders() const { return _folders; }

private:
    /// A folder whose own folders have the names of a program's versions.
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

/// Orders the names of a program's versions, the newest first: numbers between dots count as
/// numbers
/// ("2.10" before "2.9"), and names that are none come last.
[[nodiscard]] bool isNewerVersion(std::string_view left, std::string_view right);

}  // namespace vantorel
