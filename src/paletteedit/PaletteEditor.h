#pragma once

#include "colorlists/PaletteFileStore.h"
#include "paletteedit/EditHistory.h"
#include "paletteedit/EntriesReader.h"
#include "result/Message.h"

#include <functional>
#include <map>
#include <unordered_map>
#include <vector>

namespace vantorel {

/// What a step has led to.
struct EditOutcome {
    bool done = false;
    /// The list to show now; 0 if there is none, for example after a removal.
    PaletteId list = 0;
    /// What the user should know. A step that changes nothing because there was nothing to change
    /// has no messages.
    std::vector<Message> messages = {};

    [[nodiscard]] bool hasFailed() const { return !done && !messages.empty(); }
};

/// A list that can be edited.
struct EditablePalette {
    PaletteId id = 0;
    /// The name under which it is listed.
    std::u16string name;
    /// The program that the list belongs to; empty for one of the user's own.
    std::u16string program;
    std::string path;

    [[nodiscard]] bool isOwn() const { return program.empty(); }
};

/// Edits the user's colour lists. Each change is saved at once and can be undone. A step that
/// cannot be saved is not applied, so the entries shown are always those on disk.
///
/// Other programs may write the same files. Before each write, the file is compared with what was
/// read, and foreign changes are merged. Our own programs are kept out of the folder from the
/// comparison to the end of the write. Lists of other programs are never written: the first
/// change copies the list to one of the user's own.
class PaletteEditor {
public:
    /// Removes the file at a path, or moves it to the trash; returns false if that failed. Supplied
    /// by the owner of this object, because `HostFiles` cannot remove files.
    using RemoveFile = std::function<bool(const std::string& path)>;

    /// Whether the lists are looked at in the constructor, or only at the first refresh.
    enum class FirstLook { now, later };

    /// `files` and `store` must outlive the editor.
    PaletteEditor(HostFiles& files, PaletteFileStore& store, RemoveFile removeFile,
                  FirstLook firstLook = FirstLook::now);

    /// Refreshes the lists from the disk. Returns those that other programs have changed or
    /// removed.
    std::vector<EditablePalette> refresh();
    /// Begins to refresh the lists in steps, for callers that have other things to do while many
    /// files are read.
    void beginRefresh();
    /// Looks at the next files, at most `count`. Returns whether all have been looked at.
    bool continueRefresh(std::size_t count) { return _store.continueListing(count); }
    [[nodiscard]] PaletteFileStore::ListingProgress refreshProgress() const
    {
        return _store.listingProgress();
    }
    /// Updates `palettes` to what has been found so far.
    void showRefreshed() { setPalettes(_store.listedSoFar()); }
    /// Ends the refresh, whether or not all files have been looked at, and returns what `refresh`
    /// does.
    std::vector<EditablePalette> endRefresh();

    /// The lists as of the last refresh or step, in the order of the store.
    [[nodiscard]] const std::vector<EditablePalette>& palettes() const { return _palettes; }
    /// Returns a list, or null if it does not exist.
    [[nodiscard]] const EditablePalette* palette(PaletteId id) const;
    /// Returns the entries of a list, reading them at the first call. Returns an empty list if the
    /// list does not exist or cannot be read.
    [[nodiscard]] const PaletteEntries& entriesOf(PaletteId id);
    /// Reads the next lines of a list, at most `lines`, for callers that have other things to do
    /// while a long list is read. Returns whether `entriesOf` no longer needs to read. One list at
    /// a time is read in this way.
    bool continueReading(PaletteId id, std::size_t lines);
    /// Returns the reader of a list that has been read in part, or null.
    [[nodiscard]] const EntriesReader* readerOf(PaletteId id) const
    {
        return _reading && _reading->list == id ? &_reading->reader : nullptr;
    }

    /// Each of these is one step. Names are tidied and made unique.
    EditOutcome add(const std::u16string& name, const PaletteEntries& entries);
    EditOutcome rename(PaletteId id, const std::u16string& name);
    EditOutcome remove(PaletteId id);
    EditOutcome setEntries(PaletteId id, PaletteEntries entries);

    [[nodiscard]] bool canUndo() const { return _history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return _history.canRedo(); }
    EditOutcome undo();
    EditOutcome redo();

private:
    /// The known state of a list's file.
    struct Record {
        std::string path;
        std::u16string program;
        /// The file's version when `state` was read; 0 if it must be read again.
        std::uint64_t version = 0;
        /// Empty until it is requested, and if the file is not a palette.
        std::optional<PaletteState> state;
        /// Whether the file has lines that saving would drop.
        bool hasOtherLines = false;
    };
    struct StepwiseReading {
        StepwiseReading(PaletteId readList, std::uint64_t readVersion, std::string bytes,
                        const std::string& path)
            : list(readList), version(readVersion), reader(std::move(bytes), path)
        {
        }
        PaletteId list;
        std::uint64_t version;
        EntriesReader reader;
    };
    enum class Occasion { first, again };

    /// Begins a step that changes `id`, called `name`, by locking our own folder. If that fails,
    /// returns null and reports it.
    [[nodiscard]] std::shared_ptr<HostFolderLock> beginStep(PaletteId id,
                                                            const std::u16string& name,
                                                            EditOutcome& outcome);
    Record* recordOf(PaletteId id);
    PaletteId idOfPath(const std::string& path);
    void readIfChanged(Record& record);
    static void setContents(Record& record, std::optional<EntriesReader::File> file);
    /// Returns whether something that cannot be read exists at the record's path. Such a list must
    /// not be treated as removed.
    [[nodiscard]] bool isUnreadable(const Record& record) const;
    void lookAgain() { setPalettes(_store.listedPalettes()); }
    void setPalettes(std::vector<ListedPalette> listed);
    /// Which lists a new name must differ from. One of the user's own lists may take the name of
    /// another program's list, which is then listed with the program's name appended. That is
    /// expected only if the user's list has had the name before.
    enum class Among { allLists, ownLists };
    [[nodiscard]] std::u16string freeListName(const std::u16string& wanted, PaletteId except,
                                              Among among) const;

    /// Applies a step to one list, as far as the file on disk allows. Returns the step that was
    /// actually applied, or `std::nullopt` if it failed.
    std::optional<EditStep> commit(const EditStep& step, Occasion occasion, EditOutcome& outcome);
    std::optional<EditStep> commitNew(PaletteId id, PaletteState state, EditOutcome& outcome);
    std::optional<EditStep> commitRemoval(const EditStep& step, Occasion occasion,
                                          EditOutcome& outcome);
    std::optional<EditStep> commitChange(const EditStep& step, Occasion occasion,
                                         EditOutcome& outcome);
    bool save(PaletteId id, Record& record, const PaletteState& state, EditOutcome& outcome);
    [[nodiscard]] Message notSaved(std::u16string_view name) const;
    [[nodiscard]] Message notRemoved(std::u16string_view name) const;
    bool keepOriginal(const Record& record, EditOutcome& outcome);
    EditOutcome doFirst(const EditStep& step);
    EditOutcome doAgain(const EditStep& step, void (EditHistory::*move)());

    HostFiles& _files;
    PaletteFileStore& _store;
    RemoveFile _removeFile;
    EditHistory _history;
    std::vector<EditablePalette> _palettes;
    std::unordered_map<PaletteId, std::size_t> _placesOfPalettes;
    /// The lists at the beginning of the refresh.
    std::vector<EditablePalette> _palettesBefore;
    std::map<PaletteId, Record> _records;
    std::unique_ptr<StepwiseReading> _reading;
    std::map<std::string, PaletteId> _idsOfPaths;
    PaletteId _lastId = 0;
};

}  // namespace vantorel
