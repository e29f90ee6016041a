#pragma once

#include "panel/palettes/PaletteCommands.h"
#include "panel/palettes/PaletteEntriesView.h"
#include "panel/palettes/PaletteListChooser.h"
#include "panel/palettes/PaletteMessageLabel.h"
#include "panel/palettes/PaletteSession.h"
#include "panel/palettes/PaletteWatch.h"

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <vector>

namespace vantorel {

/// The colour lists that all pages share, to be edited: a pop-up of lists, a filter, the colours,
/// and buttons. Every change is saved at once and can be undone.
class PalettesWidget final : public QWidget {
    Q_OBJECT

public:
    /// `files` and `store` must outlive the widget.
    PalettesWidget(HostFiles& files, PaletteFileStore& store);

    /// The panel's colour, which the user can add.
    void setColor(const HostColor& color);
    /// From now on, what others change on the disk shows at once; or no longer.
    void setWatching(bool flag);
    /// Takes a name that the user has typed and not yet entered.
    void finishEditing() { _lists->finishEditing(); }

    // What the commands do once they know the files.

    void importFiles(const QStringList& paths);
    /// In the form that the ending of the file's name stands for, else as a palette of GIMP.
    void saveCopy(const QString& path);

signals:
    /// The user takes a colour, which has no opacity of its own.
    void colorChosen(const vantorel::HostColor& color);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    using Command = PaletteCommands::Command;
    using MessageKind = PaletteMessageLabel::Kind;

    // PalettesWidget.cpp: what is seen

    void makeControls();
    void layOutControls();
    void showCurrentList();
    void showState();
    void lookAtDisk();

    // PalettesWidgetCommands.cpp: what can be done

    void connectCommands();
    /// Shows what a step has led to; `places` are selected.
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
    PaletteWatch _watch;
    HostColor _color = HostColor::whiteColor();

    PaletteCommands* _commands = nullptr;
    PaletteListChooser* _lists = nullptr;
    QLabel* _ownership = nullptr;
    QLineEdit* _filter = nullptr;
    PaletteEntriesView* _view = nullptr;
    PaletteMessageLabel* _message = nullptr;
    QLabel* _count = nullptr;
};

}  // namespace vantorel
