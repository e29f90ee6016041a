#pragma once

#include "paletteedit/EntryEdits.h"
#include "paletteedit/PaletteEditor.h"
#include "panel/palettes/PaletteEntriesView.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace vantorel {

/// The colour lists that all pages share, to be edited: a pop-up of lists, a filter, the colours,
/// and buttons. Every change is saved at once and can be undone.
class PalettesWidget final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(PalettesWidget)

public:
    using Choice = std::function<void(const HostColor&)>;

    /// `files` and `store` must outlive the widget. `choice` gets the colour that the user takes.
    PalettesWidget(HostFiles& files, PaletteFileStore& store, Choice choice);

    /// The panel's colour, which the user can add.
    void setColor(const HostColor& color);
    /// From now on, what others change on the disk shows at once; or no longer.
    void setWatching(bool flag);

    // What the commands do once they know the files.

    void importFiles(const QStringList& paths);
    /// In the form that the ending of the file's name stands for, else as a palette of GIMP.
    void saveCopy(const QString& path);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What a command needs to make sense.
    enum class Needs { nothing, list, ownList, selection, undo, redo };
    struct Command {
        QAction* action;
        Needs needs;
    };
    enum class RemarkKind { news, failure };

    // PalettesWidget.cpp: what is seen

    void makeControls();
    void layOutControls();
    void showLists();
    void showEntries();
    void showCurrentList();
    void updateCommands();
    void showRemark(const QString& text, RemarkKind kind);
    void watchFolders();
    void lookAtDisk();
    void beginListRename();
    void endListRename(bool takes);

    // PalettesWidgetCommands.cpp: what can be done

    void makeCommands();
    QAction* addCommand(const QString& text, const QKeySequence& key, Needs needs,
                        const std::function<void()>& reaction);
    [[nodiscard]] QAction* commandFor(const QKeyEvent& event, bool inField) const;
    /// Shows what a step has led to; `places` are selected.
    void take(const EditOutcome& outcome, const std::vector<std::size_t>& places = {});
    void takeEdit(EntryEdit edit);
    void addColors(std::size_t before, const PaletteEntries& colors);
    void addPanelColor();
    void removeSelected();
    void moveSelected(std::size_t before);
    void renameEntry(std::size_t place, const QString& name);
    bool dropColor(const QMimeData& dropped, std::size_t before);
    void makeList();
    void copyList();
    void removeList();
    void chooseFilesToImport();
    void chooseFileToSave();
    [[nodiscard]] const PaletteEntries& entries() { return _editor.entriesOf(_list); }
    [[nodiscard]] QString nameOfList() const;
    [[nodiscard]] QString folder() const;

    HostFiles& _files;
    PaletteFileStore& _store;
    PaletteEditor _editor;
    Choice _choice;
    HostColor _color = HostColor::whiteColor();
    PaletteId _list = 0;

    QComboBox* _lists = nullptr;
    QLineEdit* _listName = nullptr;
    QToolButton* _menuButton = nullptr;
    QLineEdit* _filter = nullptr;
    PaletteEntriesModel* _model = nullptr;
    PaletteEntriesView* _view = nullptr;
    QLabel* _emptyNote = nullptr;
    QLabel* _ownership = nullptr;
    QLabel* _remark = nullptr;
    QLabel* _count = nullptr;
    QTimer _remarkTimer;
    std::vector<QToolButton*> _buttons;

    std::vector<Command> _commands;
    QMenu* _menu = nullptr;
    QMenu* _entryMenu = nullptr;
    QAction* _add = nullptr;
    QAction* _remove = nullptr;
    QAction* _recolor = nullptr;
    QAction* _rename = nullptr;
    QAction* _up = nullptr;
    QAction* _down = nullptr;
    QAction* _undo = nullptr;
    QAction* _redo = nullptr;

    std::unique_ptr<QFileSystemWatcher> _watcher;
    QTimer _lookTimer;
};

}  // namespace vantorel
