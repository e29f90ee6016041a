#pragma once

#include "host/HostColorList.h"
#include "host/HostFiles.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace vantorel {

/// The palette files of one folder, and what has been read of them. Nothing is read before it is
/// asked for; a file is read again when its version has changed.
class PaletteFolder {
public:
    using Log = std::function<void(const std::u16string& line)>;
    /// Which files of the folder can be palettes: those that end in `.gpl` in any letter case, or
    /// all. A hidden file is none.
    enum class Takes { gplFiles, everyFile };
    /// Names of our own lists count to the letter, as they were saved; in those of other programs
    /// control characters are blanks, and blanks around them are an oversight. A log line calls a
    /// file of our own by its name and another by its path.
    enum class Owner { ourselves, anotherProgram };

    struct File {
        /// 0 where there is nothing that can be read, as behind a link that leads nowhere (yet).
        std::uint64_t version = 0;
        /// Files that are none are kept in mind, too: they may be repaired in their place.
        bool isPalette = false;
        std::u16string listName;
        /// As `HostFiles::identityAtPath`.
        std::string identity;
        /// Null until somebody has asked for it; called as the file says.
        std::shared_ptr<HostColorList> list;
        /// The same entries under other names.
        std::map<std::u16string, std::shared_ptr<HostColorList>> renamedLists;
    };

    /// `files` must outlive the folder. The folder need not exist.
    PaletteFolder(HostFiles& files, std::string path, Takes takes, Owner owner, Log log);

    [[nodiscard]] const std::string& path() const { return _path; }
    [[nodiscard]] std::string pathOfFile(const std::string& fileName) const;

    /// Whether the names in the folder may be others than at the last look.
    [[nodiscard]] bool hasChanged() const;

    /// Brings `files()` in step with the disk.
    void lookAgain();
    /// Brings one file in step with the disk without a look at the others; null when it is not
    /// there.
    const File* lookAtFile(const std::string& fileName);
    /// By their names; as they were at the last look.
    [[nodiscard]] const std::map<std::string, File>& files() const { return _files; }

    /// The entries of a file, loaded now if need be, in a list of any name; null when it is no
    /// palette (any more). A list stays the same object while its file stays the same.
    std::shared_ptr<HostColorList> listInFile(const std::string& fileName);
    /// The same entries under a given name.
    std::shared_ptr<HostColorList> listInFile(const std::string& fileName,
                                              const std::u16string& name);

    /// Takes a list as what was just written into a file: it may hold more than the file can.
    void setListInFile(const std::string& fileName, std::shared_ptr<HostColorList> list);

    /// What a list is called whose file tells no name: the file's name without its ending.
    [[nodiscard]] static std::u16string fallbackListName(const std::string& fileName);

private:
    [[nodiscard]] std::optional<std::u16string> listNameIn(const std::string& bytes,
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
};

}  // namespace vantorel
