#pragma once

#include "paletteedit/EditHistory.h"
#include "paletteedit/EditOutcome.h"
#include "paletteedit/KnownPalettes.h"
#include "paletteedit/StepWriter.h"

namespace vantorel {

/// Edits the user's colour lists. Each change is saved at once and can be undone. A step that
/// cannot be saved is not applied, so the entries shown are always those on disk.
///
/// Other programs may write the same files. Before each write, the file is compared with what was
/// read, and foreign changes are merged. Our own programs are kept out of the folder from the
/// comparison to the end of the write. Lists of other programs are never written: the first
/// change copies the list to one of the user's own.
class PaletteEditor {
public:
    using RemoveFile = StepWriter::RemoveFile;

    /// Whether the lists are looked at in the constructor, or only at the first refresh.
    enum class FirstLook { now, later };

    /// `files` and `store` must outlive the editor.
    PaletteEditor(HostFiles& files, PaletteFileStore& store, RemoveFile removeFile,
                  FirstLook firstLook = FirstLook::now);
    /// The parts refer to each other.
    PaletteEditor(const PaletteEditor&) = delete;
    PaletteEditor& operator=(const PaletteEditor&) = delete;

    // What there is: see `KnownPalettes`.

    /// Refreshes the lists from the disk. Returns those that other programs have changed or
    /// removed.
    std::vector<EditablePalette> refresh();
    void beginRefresh() { _known.beginRefresh(); }
    bool continueRefresh(std::size_t count) { return _known.continueRefresh(count); }
    [[nodiscard]] PaletteFileStore::ListingProgress refreshProgress() const
    {
        return _known.refreshProgress();
    }
    void showRefreshed() { _known.showRefreshed(); }
    std::vector<EditablePalette> endRefresh() { return _known.endRefresh(); }

    [[nodiscard]] const std::vector<EditablePalette>& palettes() const { return _known.palettes(); }
    [[nodiscard]] const EditablePalette* palette(PaletteId id) const { return _known.palette(id); }
    [[nodiscard]] const PaletteEntries& entriesOf(PaletteId id) { return _known.entriesOf(id); }
    bool continueReading(PaletteId id, std::size_t lines)
    {
        return _known.continueReading(id, lines);
    }
    [[nodiscard]] const EntriesReader* readerOf(PaletteId id) const { return _known.readerOf(id); }

    // Each of these is one step. Names are tidied and made unique.

    EditOutcome add(const std::u16string& name, const PaletteEntries& entries);
    EditOutcome rename(PaletteId id, const std::u16string& name);
    EditOutcome remove(PaletteId id);
    EditOutcome setEntries(PaletteId id, PaletteEntries entries);

    [[nodiscard]] bool canUndo() const { return _history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return _history.canRedo(); }
    EditOutcome undo();
    EditOutcome redo();

private:
    /// Copies a list of another program to one of the user's own, with `entries` in place of the
    /// list's.
    EditOutcome copyWith(PaletteId id, const PaletteRecord& record, PaletteEntries entries);
    EditOutcome doFirst(const EditStep& step);
    EditOutcome doAgain(const EditStep& step, void (EditHistory::*move)());
    /// Begins a step that changes `id`, called `name`, by locking our own folder. If that fails,
    /// returns null and reports it.
    [[nodiscard]] std::shared_ptr<HostFolderLock> beginStep(PaletteId id,
                                                            const std::u16string& name,
                                                            EditOutcome& outcome);
    /// Returns `id`, or 0 if no list has it any more.
    [[nodiscard]] PaletteId ifListed(PaletteId id) const { return palette(id) != nullptr ? id : 0; }

    PaletteFileStore& _store;
    KnownPalettes _known;
    StepWriter _writer;
    EditHistory _history;
};

}  // namespace vantorel
