#pragma once

#include "colorlists/PaletteCatalogue.h"
#include "colorlists/PaletteFolder.h"
#include "colorlists/PalettePlaces.h"

#include <unordered_map>

namespace vantorel {

/// A palette as it is listed.
struct ListedPalette {
    /// No other listed palette has it.
    std::u16string name;
    /// Empty for one of the user's own.
    std::u16string program;
    std::string path;
    /// Of the file, as `HostFiles::versionAtPath`, at the last look.
    std::uint64_t version = 0;

    [[nodiscard]] bool isOwn() const { return program.empty(); }
};

/// The colour lists in palette files, one a file: those in the user's own folder,
/// `Vantorel/Palettes` in the folder of the user's data, and those that other programs have
/// installed, which are only read (`PalettePlaces`; `PaletteCatalogue` tells their names). Names
/// sort by their UTF-16 units.
///
/// Nothing is read before it is asked for. What another program changes is seen at the next look:
/// that is `availableColorLists`, and `colorListNamed` of a name that has not been found so far, or
/// whose file has changed. While nothing changes, asking for a list costs a few looks at versions.
class PaletteFileStore final : public HostColorListStore {
public:
    using Log = PaletteFolder::Log;

    /// `files` must outlive the store. `log` gets a line for each line of a file that was passed
    /// over; it may be empty.
    explicit PaletteFileStore(HostFiles& files, Log log = {});

    /// Finds also a list that has lost the program behind its name, "Reds (GIMP)", because the list
    /// that had the plain name went away.
    [[nodiscard]] std::shared_ptr<HostColorList> colorListNamed(
        const std::u16string& name) override;
    [[nodiscard]] std::vector<std::u16string> availableColorLists() override;
    /// Into the file of our own folder that holds the list of that name, else into a new one there:
    /// a file that holds anything else, even one that cannot be read, is somebody's work and stays.
    bool writeColorList(const std::shared_ptr<HostColorList>& list) override;

    // For who edits the files, and so must know what stands where. Only files of our own folder are
    // ever written.

    /// Looks again, as `availableColorLists`.
    [[nodiscard]] std::vector<ListedPalette> listedPalettes();
    /// The folders that palettes come from, our own first, whether or not they exist. Those of
    /// other programs are known after the first look.
    [[nodiscard]] std::vector<std::string> folders();
    /// Writes `text` into a file of our own folder that is not there yet, and installs `list` as
    /// what it holds. The file's path; nothing when it could not be written.
    std::optional<std::string> writeNewFile(const std::shared_ptr<HostColorList>& list,
                                            const std::string& text);
    /// The same into a file of our own folder that is replaced. False, too, for any other path.
    bool replaceFile(const std::string& path, const std::shared_ptr<HostColorList>& list,
                     const std::string& text);
    /// The file that a list is read from; nothing when there is no list of that name.
    [[nodiscard]] std::optional<std::string> pathOfList(const std::u16string& name);
    /// The same among the user's own lists alone; other folders are not looked at.
    [[nodiscard]] std::optional<std::string> pathOfOwnList(const std::u16string& name);

    /// The file of a list by its name: no name leads out of the folder, into a hidden file, or
    /// beyond what file systems take.
    [[nodiscard]] static std::string fileNameOfList(const std::u16string& name);

private:
    /// Null when the user has no folder of data.
    [[nodiscard]] PaletteFolder* ownFolder();
    /// Our own folder, made where it is missing; null where that is not possible.
    [[nodiscard]] PaletteFolder* writableFolder();
    /// `usual` with a number behind it, except for 1.
    [[nodiscard]] static std::string numberedFileName(const std::string& usual, int number);
    /// Whether the file that the name of a list of our own says holds that list.
    [[nodiscard]] static bool isInUsualFile(PaletteFolder& own, const std::u16string& name);
    /// Whether a name that is not in the catalogue may have come.
    [[nodiscard]] bool mustLookAgain();
    void lookAgain();
    /// What a name was resolved to; null when it has not been.
    [[nodiscard]] const PaletteCatalogue::Entry* rememberedEntry(const std::u16string& name) const;
    /// What a name is resolved to now; null when no list has it.
    [[nodiscard]] const PaletteCatalogue::Entry* entryNamed(const std::u16string& name);
    /// The file that a list of our own is in, and so is saved to; nothing for a new list.
    [[nodiscard]] std::optional<std::string> fileNameOfSaved(PaletteFolder& own,
                                                             const std::u16string& name);

    HostFiles& _hostFiles;
    Log _log;
    std::optional<PaletteFolder> _ownFolder;
    PalettePlaces _places;
    PaletteCatalogue _catalogue;
    /// Names that are not in the catalogue, and what they were resolved to.
    std::unordered_map<std::u16string, const PaletteCatalogue::Entry*> _onceListed;
    bool _isCatalogueCurrent = false;
};

}  // namespace vantorel
