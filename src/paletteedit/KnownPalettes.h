#pragma once

#include "colorlists/PaletteFileStore.h"
#include "paletteedit/PaletteRecord.h"

#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vantorel {

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

/// The lists as they were last seen on disk: which there are, and what their files contain. A file
/// is read when its contents are first requested. This object keeps an id as long as it lives, even
/// while the list is missing.
class KnownPalettes {
public:
    /// `files` and `store` must outlive this object. There are no lists before the first refresh.
    KnownPalettes(HostFiles& files, PaletteFileStore& store) : _files(files), _store(store) {}

    /// Refreshes the lists, but reads none that have been read before.
    void lookAgain() { setPalettes(_store.listedPalettes()); }

    // A refresh in steps, for callers that have other things to do while many files are read.

    void beginRefresh();
    /// Looks at the next files, at most `count`. Returns whether all have been looked at.
    bool continueRefresh(std::size_t count) { return _store.continueListing(count); }
    [[nodiscard]] PaletteFileStore::ListingProgress refreshProgress() const
    {
        return _store.listingProgress();
    }
    /// Updates `palettes` to what has been found so far.
    void showRefreshed() { setPalettes(_store.listedSoFar()); }
    /// Ends the refresh, whether or not all files have been looked at. Returns the lists that other
    /// programs have changed or removed.
    std::vector<EditablePalette> endRefresh();

    /// In the order of the store.
    [[nodiscard]] const std::vector<EditablePalette>& palettes() const { return _palettes; }
    /// Returns a list, or null if it does not exist.
    [[nodiscard]] const EditablePalette* palette(PaletteId id) const;
    /// Which lists a new name must differ from. One of the user's own lists may take the name of
    /// another program's list, which is then listed with the program's name appended. That is
    /// expected only if the user's list has had the name before.
    enum class Among { allLists, ownLists };
    /// Returns `wanted`, with a number if a list other than `except` has that name.
    [[nodiscard]] std::u16string freeName(const std::u16string& wanted, PaletteId except,
                                          Among among) const;

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

    /// Returns the record of a list, or null if none is known. It may be of a list whose file
    /// another program has removed.
    [[nodiscard]] PaletteRecord* recordOf(PaletteId id);
    /// Returns an id that no list has had.
    [[nodiscard]] PaletteId newId() { return ++_lastId; }
    /// Notes that a list of the user's own has been written to the file at `path` as `text`. The
    /// list may be new, or may have been in another file.
    void noteWritten(PaletteId id, const std::string& path, const PaletteState& state,
                     const std::string& text);
    /// Notes that a list's file has been removed. The list must have a record.
    void noteRemoved(PaletteId id);

private:
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

    void setPalettes(std::vector<ListedPalette> listed);
    PaletteId idOfPath(const std::string& path);

    HostFiles& _files;
    PaletteFileStore& _store;
    std::vector<EditablePalette> _palettes;
    std::unordered_map<PaletteId, std::size_t> _placesOfPalettes;
    /// The lists at the beginning of the refresh.
    std::vector<EditablePalette> _palettesBefore;
    std::map<PaletteId, PaletteRecord> _records;
    std::map<std::string, PaletteId> _idsOfPaths;
    PaletteId _lastId = 0;
    std::unique_ptr<StepwiseReading> _reading;
};

}  // namespace vantorel
