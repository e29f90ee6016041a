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
    /// Empty if no list is shown.
    [[nodiscard]] QString listName() const;
    [[nodiscard]] bool canUndo() const { return _editor.canUndo(); }
    [[nodiscard]] bool canRedo() const { return _editor.canRedo(); }

    void showList(PaletteId id) { _list = id; }
    /// Refreshes the lists from the disk. Returns those that other programs have changed or
    /// removed.
    std::vector<EditablePalette> refresh() { return _editor.refresh(); }

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
