#pragma once

#include "paletteedit/EntryEdits.h"
#include "paletteedit/PaletteEditor.h"

#include <QObject>
#include <QString>

#include <string>
#include <vector>

namespace vantorel {

/// The colour list that the page shows, and the steps that change it or show another.
class PaletteSession final : public QObject {
    Q_OBJECT

public:
    /// `files` and `store` must outlive the session.
    PaletteSession(HostFiles& files, PaletteFileStore& store);

    [[nodiscard]] const std::vector<EditablePalette>& palettes() const
    {
        return _editor.palettes();
    }
    /// 0 if no list is shown.
    [[nodiscard]] PaletteId listId() const { return _list; }
    /// Null if no list is shown.
    [[nodiscard]] const EditablePalette* list() const { return _editor.palette(_list); }
    [[nodiscard]] const PaletteEntries& entries() { return _editor.entriesOf(_list); }
    /// Reads the next lines of the list that is shown, at most `lines`. Returns whether all have
    /// been read, so that `entries` no longer needs to read.
    bool continueReading(std::size_t lines) { return _editor.continueReading(_list, lines); }
    /// Whether only some of the entries have been read.
    [[nodiscard]] bool isPartlyRead() const { return _editor.readerOf(_list) != nullptr; }
    [[nodiscard]] const PaletteEntries& entriesSoFar();
    [[nodiscard]] int percentRead() const;
    /// Empty if no list is shown.
    [[nodiscard]] QString listName() const;
    [[nodiscard]] bool canUndo() const { return _editor.canUndo(); }
    [[nodiscard]] bool canRedo() const { return _editor.canRedo(); }

    void showList(PaletteId id) { _list = id; }

    // See `PaletteEditor`. There are no lists before the first refresh.

    void beginRefresh() { _editor.beginRefresh(); }
    bool continueRefresh(std::size_t count) { return _editor.continueRefresh(count); }
    [[nodiscard]] PaletteFileStore::ListingProgress refreshProgress() const
    {
        return _editor.refreshProgress();
    }
    void showRefreshed() { _editor.showRefreshed(); }
    std::vector<EditablePalette> endRefresh() { return _editor.endRefresh(); }

    // Each of these is a step. It shows the resulting list and emits `stepTaken`.

    EditOutcome addList(const std::u16string& name, const PaletteEntries& entries);
    EditOutcome renameList(const std::u16string& name);
    EditOutcome removeList();
    void edit(EntryEdit edit);
    void undo();
    void redo();

signals:
    /// A step was taken or has failed. `places` are those of the entries that it has changed.
    void stepTaken(const vantorel::EditOutcome& outcome, const std::vector<std::size_t>& places);

private:
    EditOutcome take(const EditOutcome& outcome, const std::vector<std::size_t>& places = {});

    PaletteEditor _editor;
    PaletteId _list = 0;
};

}  // namespace vantorel
