#pragma once

#include "host/HostColorList.h"
#include "host/HostFiles.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace vantorel {

/// The palette files of one folder and the contents read so far. Files are read only on request,
/// and again when their version has changed.
class PaletteFolder {
public:
    using Log = std::function<void(const std::u16string& line)>;
    /// Which files of the folder can be palettes: those with the extension `.gpl` in any letter
    /// case, or all files. Hidden files never are.
    enum class Takes { gplFiles, everyFile };
    /// Whose files these are. The names of our own lists are taken literally, as they were saved.
    /// In names of other programs, control characters become spaces, and leading and trailing
    /// spaces are removed. Log messages show our own files by name and others by path.
    enum class Owner { ourselves, anotherProgram };

    struct File {
        /// 0 if the file cannot be read, as for a link whose target does not exist (yet).
        std::uint64_t version = 0;
        /// Files that are not palettes are kept too: they may be repaired in place.
        bool isPalette = false;
        std::u16string listName;
        /// The file's `HostFiles::identityAtPath`.
        std::string identity;
        /// The list, named as in the file; null until it is requested.
        std::shared_ptr<HostColorList> list;
        /// Lists of the same entries under other names.
        std::map<std::u16string, std::shared_ptr<HostColorList>> renamedLists;
    };

    /// `files` must outlive the folder. The folder need not exist.
    PaletteFolder(HostFiles& files, std::string path, Takes takes, Owner owner, Log log);

    [[nodiscard]] const std::string& path() const { return _path; }
    [[nodiscard]] std::string pathOfFile(const std::string& fileName) const;

    /// Returns whether the folder's list of file names may have changed since the last refresh.
    [[nodiscard]] bool hasChanged() const;

    /// Refreshes `files()` from the disk.
    void lookAgain();
    /// Begins to refresh `files()` in steps: refreshes their names.
    void beginLooking();
    /// Refreshes the next files, at most `allowance`, which is reduced by their number. Returns
    /// whether all have been refreshed.
    bool continueLooking(std::size_t& allowance);
    /// Refreshes one file from the disk and returns it, or null if it does not exist.
    const File* lookAtFile(const std::string& fileName);
    /// The files by name, as of the last refresh.
    [[nodiscard]] const std::map<std::string, File>& files() const { return _files; }

    /// Returns the list in a file, loading it if necessary; null if the file is not a palette (any
    /// more). The same object is returned as long as the file does not change.
    std::shared_ptr<HostColorList> listInFile(const std::string& fileName);
    /// Returns the entries of a file as a list with the given name.
    std::shared_ptr<HostColorList> listInFile(const std::string& fileName,
                                              const std::u16string& name);

    /// Installs a list as the contents of a file just written. The list may hold more than the file
    /// can.
    void setListInFile(const std::string& fileName, std::shared_ptr<HostColorList> list);

    /// Returns the name for a list whose file contains none: the file name without its extension.
    [[nodiscard]] static std::u16string fallbackListName(const std::string& fileName);

private:
    /// Returns the name that the list of a file gets.
    [[nodiscard]] std::optional<std::u16string> listName(std::optional<std::u16string> nameInFile,
                                                         const std::string& fileName) const;
    void refresh(const std::string& fileName, File& file);
    void load(const std::string& fileName, File& file);

    HostFiles& _hostFiles;
    std::string _path;
    Takes _takes;
    Owner _owner;
    Log _log;
    std::uint64_t _version = 0;
    std::map<std::string, File> _files;
    /// The last file that `continueLooking` has refreshed; empty for none.
    std::string _lastRefreshed;
};

}  // namespace vantorel
