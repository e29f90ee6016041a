#pragma once

#include "panel/palettes/PaletteCommands.h"
#include "panel/palettes/PaletteEdits.h"
#include "panel/palettes/PaletteFiles.h"
#include "panel/palettes/PaletteKeys.h"
#include "panel/palettes/PaletteListChooser.h"
#include "panel/palettes/PaletteProgress.h"
#include "panel/palettes/PaletteUpdates.h"
#include "panel/widgets/SegmentedChoice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QWidget>

#include <vector>

namespace vantorel {

/// The editor of the colour lists that all pages share: a pop-up of lists, a filter, the colours,
/// and buttons. Every change is saved at once and can be undone.
///
/// The widget lays out the controls and shows the session in them. `PaletteEdits` and
/// `PaletteFiles` carry out the commands.
class PalettesWidget final : public QWidget {
    Q_OBJECT

public:
    /// `files` and `store` must outlive the widget.
    PalettesWidget(HostFiles& files, PaletteFileStore& store);

    /// Returns the name of the list that is shown; empty if there is none.
    [[nodiscard]] QString listName() const { return _session.listName(); }
    /// The panel's colour, which the user can add.
    void setColor(const HostColor& color);
    /// Turns on or off that changes by other programs are shown at once.
    void setWatching(bool flag);
    /// Applies a name that the user has typed but not yet entered.
    void finishEditing() { _lists->finishEditing(); }
    /// Carries out the command for a key, if there is one.
    bool performKey(const QKeyEvent& event) { return _keys->perform(event); }
    /// Shows the colours of a list as rows or as a grid.
    void setArrangement(PaletteEntriesView::Arrangement arrangement);
    /// Adds colours to the shown list in one step.
    void addColors(const std::vector<HostColor>& colors) { _edits->addColors(colors); }
    /// Shows the main colours of a picture in a window of their own. An empty name becomes another.
    void showPicture(const QImage& picture, const QString& name);
    /// Imports dropped files, or shows the colours of a dropped picture.
    void takeDropped(const QMimeData& dropped);
    /// Adds a list, and lets the user name it.
    void startList(const QString& name, const PaletteEntries& entries);

signals:
    /// The user has chosen a colour. Its opacity is not part of the list and should be ignored.
    void colorChosen(const vantorel::HostColor& color);
    /// The user wants to pick colours from the screen, which `addColors` takes.
    void picksRequested();
    /// The user has chosen how the colours are arranged.
    void arrangementChosen(vantorel::PaletteEntriesView::Arrangement arrangement);

protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    using Command = PaletteCommands::Command;
    using MessageKind = MessageLabel::Kind;

    void makeControls();
    void layOutControls();
    void connectControls();
    void connectSession();
    void connectCommands();

    void showCurrentList();
    /// Shows the colours of the current list that have been read.
    void showEntries();
    void showState();
    /// Shows the refreshed lists, and which of them others have changed or removed.
    void showRefreshed(const std::vector<EditablePalette>& changed);
    /// Shows the outcome of a step and selects `places`.
    void showStep(const EditOutcome& outcome, const std::vector<std::size_t>& places);

    void removeList();

    PaletteSession _session;
    PaletteUpdates _updates;

    PaletteCommands* _commands = nullptr;
    PaletteListChooser* _lists = nullptr;
    SegmentedChoice* _arrangements = nullptr;
    QLabel* _ownership = nullptr;
    PaletteEntriesView* _view = nullptr;
    QHBoxLayout* _viewRow = nullptr;
    PaletteFilter* _filter = nullptr;
    PaletteProgress* _progress = nullptr;
    MessageLabel* _message = nullptr;
    QLabel* _named = nullptr;
    PaletteKeys* _keys = nullptr;
    PaletteEdits* _edits = nullptr;
    PaletteFiles* _files = nullptr;
};

}  // namespace vantorel
