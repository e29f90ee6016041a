#pragma once

#include "colorlists/PaletteCatalogue.h"
#include "colorlists/PaletteFolder.h"
#include "colorlists/PalettePlaces.h"

#include <unordered_map>

namespace vantorel {

/// A palette in a listing.
struct ListedPalette {
    /// The name, unique among the listed palettes.
    std::u16string name;
    /// The program that the palette belongs to; empty for one of the user's own.
    std::u16string program;
    std::string path;
    /// The file's `HostFiles::versionAtPath` when it was last checked.
    std::uint64_t version = 0;

    [[nodiscard]] bool isOwn() const { return program.empty(); }
};

/// The store of colour lists in palette files, one list a file. It covers the user's own folder,
/// `Vantorel/Palettes` in the user's data folder, and the palettes installed by other programs,
/// which are read-only. `PalettePlaces` finds the other programs' folders; `PaletteCatalogue` makes
/// the names unique. Names are sorted by their UTF-16 units.
///
/// Files are read only on request. Changes by other programs are noticed by `availableColorLists`
/// and, for an unknown name or a changed file, by `colorListNamed`. As long as nothing changes,
/// looking up a list costs only a few version checks.
class PaletteFileStore final : public HostColorListStore {
public:
    using Log = PaletteFolder::Log;

    /// `files` must outlive the store. `log` gets a message for each skipped line of a file; it may
    /// be empty.
    explicit PaletteFileStore(HostFiles& files, Log log = {});

    /// Also finds a list by a name with a program in brackets, "Reds (GIMP)", after it has become
    /// plain "Reds" because the other list of that name was removed.
    [[nodiscard]] std::shared_ptr<HostColorList> colorListNamed(
        const std::u16string& name) override;
    /// Returns what `colorListNamed` would return, or `std::nullopt` if it would have to look at
    /// the files of all folders first.
    [[nodiscard]] std::optional<std::shared_ptr<HostColorList>> knownList(
        const std::u16string& name);
    [[nodiscard]] std::vector<std::u16string> availableColorLists() override;
    /// Saves a list to the file in our own folder that contains the list of that name, or to a new
    /// file there. A file with other contents, or one that cannot be read, is never overwritten.
    bool writeColorList(const std::shared_ptr<HostColorList>& list) override;

    // For editors, which need to know the files. Only files in our own folder are ever written.

    /// Refreshes the listing, like `availableColorLists`, and returns it.
    [[nodiscard]] std::vector<ListedPalette> listedPalettes();
    /// Begins to refresh the listing in steps, for callers that have other things to do while many
    /// files are read.
    void beginListing();
    /// Looks at the next files, at most `count`. Returns whether all have been looked at.
    bool continueListing(std::size_t count);
    /// How far the steps have come.
    struct ListingProgress {
        std::size_t files = 0;
        std::size_t allFiles = 0;
    };
    [[nodiscard]] const ListingProgress& listingProgress() const { return _progress; }
    /// Lets names be looked up in what has been found so far. They are final only after the last
    /// step.
    void endListing();
    /// Calls `endListing` and returns what has been found so far.
    [[nodiscard]] std::vector<ListedPalette> listedSoFar();
    /// Returns the folders that palettes are read from, our own first, whether or not they exist.
    /// Those of other programs are known only after the first refresh.
    [[nodiscard]] std::vector<std::string> folders();
    /// Writes `text` to a new file in our own folder and installs `list` as its contents. Returns
    /// the file's path, or `std::nullopt` if it could not be written.
    std::optional<std::string> writeNewFile(const std::shared_ptr<HostColorList>& list,
                                            const std::string& text);
    /// Replaces an existing file in our own folder and installs `list` as its contents. Returns
    /// false if the file could not be written or the path is not in our own folder.
    bool replaceFile(const std::string& path, const std::shared_ptr<HostColorList>& list,
                     const std::string& text);
    /// Locks our own folder, creating it if necessary. Returns null if another program keeps it
    /// locked; nothing must then be written.
    [[nodiscard]] std::shared_ptr<HostFolderLock> lockOwnFolder();
    /// Returns the file that a list of the user's own is read from, or `std::nullopt` if there is
    /// none of that name.
    [[nodiscard]] std::optional<std::string> pathOfOwnList(const std::u16string& name);

    /// Returns the file name for a list. The name is encoded so that it cannot leave the folder, be
    /// hidden, or exceed the limits of file systems.
    [[nodiscard]] static std::string fileNameOfList(const std::u16string& name);

private:
    /// Returns null if the user has no data folder.
    [[nodiscard]] PaletteFolder* ownFolder();
    /// Returns our own folder, creating it if necessary; null if the user has no data folder.
    [[nodiscard]] PaletteFolder* writableFolder();
    /// Returns `usual` with a number appended, except for 1.
    [[nodiscard]] static std::string numberedFileName(const std::string& usual, int number);
    /// Returns whether a list of our own is in the file named by `fileNameOfList`.
    [[nodiscard]] static bool isInUsualFile(PaletteFolder& own, const std::u16string& name);
    /// Returns whether the catalogue may be out of date.
    [[nodiscard]] bool mustLookAgain();
    void lookAgain();
    void rebuildCatalogue();
    [[nodiscard]] std::vector<ListedPalette> palettesInCatalogue() const;
    /// Returns the entry that a name was last resolved to, or null.
    [[nodiscard]] const PaletteCatalogue::Entry* rememberedEntry(const std::u16string& name) const;
    /// Resolves a name to an entry of the catalogue. Returns null if no list has that name.
    [[nodiscard]] const PaletteCatalogue::Entry* entryNamed(const std::u16string& name);
    /// Returns the list of an entry, under the given name; null for a null entry.
    [[nodiscard]] static std::shared_ptr<HostColorList> listOf(const PaletteCatalogue::Entry* entry,
                                                               const std::u16string& name);
    /// Returns the file in our own folder that a list is saved to, or `std::nullopt` for a new
    /// list.
    [[nodiscard]] std::optional<std::string> fileNameOfSaved(PaletteFolder& own,
                                                             const std::u16string& name);

    HostFiles& _hostFiles;
    Log _log;
    std::optional<PaletteFolder> _ownFolder;
    PalettePlaces _places;
    PaletteCatalogue _catalogue;
    /// Names that are not in the catalogue, and the entries that they were resolved to.
    std::unordered_map<std::u16string, const PaletteCatalogue::Entry*> _onceListed;
    bool _isCatalogueCurrent = false;
    /// The folders that `continueListing` has yet to look at, the next one last.
    std::vector<PaletteFolder*> _foldersAhead;
    ListingProgress _progress;
};

}  // namespace vantorel
