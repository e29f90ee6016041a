#pragma once

#include "panel/palettes/PaletteCommands.h"
#include "panel/palettes/PaletteEntriesView.h"
#include "panel/palettes/PaletteListChooser.h"
#include "panel/palettes/PaletteLoading.h"
#include "panel/palettes/PaletteRefresh.h"
#include "panel/palettes/PaletteSession.h"
#include "panel/palettes/PaletteWatch.h"
#include "panel/widgets/MessageLabel.h"

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <vector>

namespace vantorel {

/// The editor of the colour lists that all pages share: a pop-up of lists, a filter, the colours,
/// and buttons. Every change is saved at once and can be undone.
class PalettesWidget final : public QWidget {
    Q_OBJECT

public:
    /// `files` and `store` must outlive the widget.
    PalettesWidget(HostFiles& files, PaletteFileStore& store);

    /// The panel's colour, which the user can add.
    void setColor(const HostColor& color);
    /// Turns on or off that changes by other programs are shown at once.
    void setWatching(bool flag);
    /// Applies a name that the user has typed but not yet entered.
    void finishEditing() { _lists->finishEditing(); }
    /// Carries out the command for a key, if there is one.
    bool performKey(const QKeyEvent& event);

    // Import and export, once the user has chosen the files.

    void importFiles(const QStringList& paths);
    /// Saves in the format of the file name's ending, or as a GIMP palette if the ending is
    /// unknown.
    void saveCopy(const QString& path);

signals:
    /// The user has chosen a colour. Its opacity is not part of the list and should be ignored.
    void colorChosen(const vantorel::HostColor& color);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    using Command = PaletteCommands::Command;
    using MessageKind = MessageLabel::Kind;

    // PalettesWidget.cpp: the controls

    void makeControls();
    void layOutControls();
    void showCurrentList();
    /// Shows the colours of the current list that have been read.
    void showEntries();
    void showState();
    void lookAtDisk() { _refresh.start(); }
    void makeProgress();
    void showProgress(const QString& text);
    void hideProgress();
    /// Shows the refreshed lists, and which of them others have changed or removed.
    void showRefreshed(const std::vector<EditablePalette>& changed);

    // PalettesWidgetCommands.cpp: the commands

    void connectCommands();
    /// Shows the outcome of a step and selects `places`.
    void showStep(const EditOutcome& outcome, const std::vector<std::size_t>& places);
    void addColors(std::size_t before, const PaletteEntries& colors);
    void addPanelColor();
    void removeSelected();
    void renameEntry(std::size_t place, const QString& name);
    void takeDrop(const ColorOffer& offer, std::size_t before);
    /// Adds a list, and lets the user name it.
    void startList(const QString& name, const PaletteEntries& entries);
    void removeList();
    void chooseFilesToImport();
    void chooseFileToSave();

    HostFiles& _files;
    PaletteSession _session;
    PaletteRefresh _refresh;
    PaletteLoading _loading;
    PaletteWatch _watch;
    HostColor _color = HostColor::whiteColor();

    PaletteCommands* _commands = nullptr;
    PaletteListChooser* _lists = nullptr;
    QLabel* _ownership = nullptr;
    QLineEdit* _filter = nullptr;
    PaletteEntriesView* _view = nullptr;
    MessageLabel* _message = nullptr;
    QLabel* _count = nullptr;
    /// A row that is shown while many lists, or a long one, are read.
    QWidget* _progress = nullptr;
    QLabel* _progressText = nullptr;
};

}  // namespace vantorel
