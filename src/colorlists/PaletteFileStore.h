#pragma once

#include "host/HostColorList.h"
#include "host/HostFiles.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace vantorel {

/// The colour lists in the user's own folder, `Vantorel/Palettes` in the folder of the user's data:
/// palette files, one a list. They are read when they are asked for; what another program changes
/// is seen at the next look. Names sort by their UTF-16 units.
class PaletteFileStore final : public HostColorListStore {
public:
    using Log = std::function<void(const std::u16string& line)>;

    /// `files` must outlive the store. `log` gets a line for each line of a file that was passed
    /// over; it may be empty.
    explicit PaletteFileStore(HostFiles& files, Log log = {});

    [[nodiscard]] std::shared_ptr<HostColorList> colorListNamed(
        const std::u16string& name) override;
    [[nodiscard]] std::vector<std::u16string> availableColorLists() override;
    /// Into the file that holds the list of that name, else into a new one: a file that holds
    /// anything else, even one that cannot be read, is somebody's work and stays.
    bool writeColorList(const std::shared_ptr<HostColorList>& list) override;

    /// The file of a list by its name: no name leads out of the folder, into a hidden file, or
    /// beyond what file systems take.
    [[nodiscard]] static std::string fileNameOfList(const std::u16string& name);

private:
    struct File {
        std::uint64_t version = 0;
        /// Files that are none are kept in mind, too: they may be repaired in their place.
        bool isPalette = false;
        std::u16string listName;
        std::shared_ptr<HostColorList> list;  ///< null until somebody has asked for it
    };

    [[nodiscard]] std::optional<std::string> folder() const;
    /// Brings `_files` in step with the folder.
    void lookAgain();
    /// Looks at one file again if it has changed.
    void refresh(const std::string& fileName, File& file);
    void load(const std::string& fileName, File& file);
    [[nodiscard]] std::string fileNameForSaving(const std::u16string& name);

    HostFiles& _hostFiles;
    Log _log;
    std::uint64_t _folderVersion = 0;
    std::map<std::string, File> _files;
};

}  // namespace vantorel
