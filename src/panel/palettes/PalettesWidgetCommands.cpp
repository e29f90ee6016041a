#include "hosts/qt/QtColors.h"
#include "listformats/ListReader.h"
#include "paletteedit/FreeNames.h"
#include "paletteedit/ProposedName.h"
#include "panel/palettes/ListFileFilters.h"
#include "panel/palettes/PaletteRemarks.h"
#include "panel/palettes/PalettesWidget.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/widgets/PanelIcons.h"

#include <QDragEnterEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QUrl>

#include <algorithm>

/// What the commands of the palettes' page do.
namespace vantorel {
namespace {

/// A file beyond this is no palette that anybody has made.
constexpr qint64 largestFile = qint64{64} << 20;

}  // namespace

QAction* PalettesWidget::addCommand(const QString& text, const QKeySequence& key, Needs needs,
                                    const std::function<void()>& reaction)
{
    auto* action = new QAction(text, this);
    // Shown in menus; the keys themselves come through `event`, ahead of the panel's shortcuts.
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    if (!key.isEmpty()) {
        action->setToolTip(
            QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    }
    connect(action, &QAction::triggered, this, reaction);
    _commands.push_back({action, needs});
    return action;
}

void PalettesWidget::makeCommands()
{
    _menu = new QMenu(this);
    _entryMenu = new QMenu(this);
    const auto inMenu = [this](QMenu* menu, const QString& text, const QKeySequence& key,
                               Needs needs, const std::function<void()>& reaction) {
        QAction* action = addCommand(text, key, needs, reaction);
        menu->addAction(action);
        return action;
    };
    inMenu(_menu, tr("New list"), Qt::CTRL | Qt::Key_N, Needs::nothing, [this] { makeList(); });
    inMenu(_menu, tr("Rename the list"), Qt::SHIFT | Qt::Key_F2, Needs::list,
           [this] { beginListRename(); });
    inMenu(_menu, tr("Copy the list"), Qt::CTRL | Qt::Key_D, Needs::list, [this] { copyList(); });
    inMenu(_menu, tr("Remove the list"), Qt::SHIFT | Qt::Key_Delete, Needs::ownList,
           [this] { removeList(); });
    _menu->addSeparator();
    inMenu(_menu, tr("Import palette files..."), Qt::CTRL | Qt::Key_O, Needs::nothing,
           [this] { chooseFilesToImport(); });
    inMenu(_menu, tr("Save a copy as a file..."), Qt::CTRL | Qt::Key_S, Needs::list,
           [this] { chooseFileToSave(); });
    _menu->addSeparator();

    _add = inMenu(_entryMenu, tr("Add the panel's colour"), Qt::Key_Insert, Needs::nothing,
                  [this] { addPanelColor(); });
    _add->setIcon(addIcon());
    _rename = inMenu(_entryMenu, tr("Rename"), Qt::Key_F2, Needs::selection, [this] {
        const auto places = _view->selectedPlaces();
        if (!places.empty()) _view->renameAt(places.front());
    });
    _recolor =
        inMenu(_entryMenu, tr("Give it the panel's colour"), Qt::CTRL | Qt::Key_R, Needs::selection,
               [this] { takeEdit(withRecolored(entries(), _view->selectedPlaces(), _color)); });
    _recolor->setIcon(recolorIcon());
    _up = inMenu(_entryMenu, tr("Move up"), Qt::ALT | Qt::Key_Up, Needs::selection,
                 [this] { takeEdit(withStepped(entries(), _view->selectedPlaces(), -1)); });
    _down = inMenu(_entryMenu, tr("Move down"), Qt::ALT | Qt::Key_Down, Needs::selection,
                   [this] { takeEdit(withStepped(entries(), _view->selectedPlaces(), 1)); });
    _remove = inMenu(_entryMenu, tr("Remove"), Qt::Key_Delete, Needs::selection,
                     [this] { removeSelected(); });
    _remove->setIcon(removeIcon());
    _entryMenu->setTitle(tr("Colours"));
    _menu->addMenu(_entryMenu);
    inMenu(_menu, tr("Find"), Qt::CTRL | Qt::Key_F, Needs::list, [this] {
        _filter->setFocus();
        _filter->selectAll();
    });
    _menu->addSeparator();
    _undo = inMenu(_menu, tr("Undo"), Qt::CTRL | Qt::Key_Z, Needs::undo,
                   [this] { take(_editor.undo()); });
    _undo->setIcon(undoIcon());
    _redo = inMenu(_menu, tr("Redo"), Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Needs::redo,
                   [this] { take(_editor.redo()); });
    _redo->setIcon(redoIcon());

    _view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(_view, &QWidget::customContextMenuRequested, this,
            [this](QPoint at) { _entryMenu->popup(_view->viewport()->mapToGlobal(at)); });
}

QAction* PalettesWidget::commandFor(const QKeyEvent& event, bool inField) const
{
    const QKeySequence pressed(event.keyCombination());
    // Ctrl+Y is what other desktops know as redo.
    if (!inField && pressed == QKeySequence(Qt::CTRL | Qt::Key_Y)) return _redo;
    for (const auto& [action, needs] : _commands) {
        if (action->shortcut() != pressed) continue;
        // A field has its own use for these.
        const bool isOfFields = action == _undo || action == _redo || action == _remove ||
                                pressed == QKeySequence(Qt::SHIFT | Qt::Key_Delete) ||
                                pressed == QKeySequence(Qt::SHIFT | Qt::Key_Insert);
        return inField && isOfFields ? nullptr : action;
    }
    return nullptr;
}

bool PalettesWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Claims the keys of the page, so that the panel's commands do not get them.
        auto* key = static_cast<QKeyEvent*>(event);
        if (commandFor(*key, qobject_cast<QLineEdit*>(focusWidget()) != nullptr) != nullptr) {
            key->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool PalettesWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == _view) {
        _emptyNote->setGeometry(_view->viewport()->rect());
    }
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    auto* field = qobject_cast<QLineEdit*>(watched);
    if (watched == _listName && key->key() == Qt::Key_Escape) {
        endListRename(false);
        return true;
    }
    if (watched == _filter && key->key() == Qt::Key_Escape && !_filter->text().isEmpty()) {
        _filter->clear();
        return true;
    }
    if (watched == _filter && key->key() == Qt::Key_Down && _model->rowCount() > 0) {
        _view->setFocus();
        if (!_view->currentIndex().isValid()) _view->setCurrentIndex(_model->index(0));
        return true;
    }
    // Where there is no typing to undo, the page's own step is meant.
    const bool isFieldsKey =
        field != nullptr && (field->isUndoAvailable() || field->isRedoAvailable() ||
                             !field->text().isEmpty() || field == _listName);
    if (QAction* action = commandFor(*key, isFieldsKey)) {
        if (action->isEnabled()) action->trigger();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void PalettesWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // Some file systems tell nobody of a change.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && _watcher) lookAtDisk();
}

void PalettesWidget::take(const EditOutcome& outcome, const std::vector<std::size_t>& places)
{
    if (outcome.done || _editor.palette(outcome.list) != nullptr) {
        if (outcome.list != _list) _filter->clear();
        _list = outcome.list;
    }
    showCurrentList();
    if (outcome.done && !places.empty()) _view->selectPlaces(places);
    showRemark(textOfRemarks(outcome, folder()),
               isFailure(outcome) ? RemarkKind::failure : RemarkKind::news);
}

void PalettesWidget::takeEdit(EntryEdit edit)
{
    const std::vector<std::size_t> places = edit.places;
    std::vector<std::u16string> names;
    names.reserve(places.size());
    for (const std::size_t place : places)
        names.push_back(edit.entries[place].name());
    const EditOutcome outcome = _editor.setEntries(_list, std::move(edit.entries));
    // What others wrote may have come in between, and moved them.
    std::vector<std::size_t> now;
    const PaletteEntries& after = _editor.entriesOf(outcome.list);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] < after.size() && after[places[i]].name() == names[i]) {
            now.push_back(places[i]);
        }
    }
    take(outcome, now);
}

void PalettesWidget::addColors(std::size_t before, const PaletteEntries& colors)
{
    if (_editor.palette(_list) == nullptr) {
        take(_editor.add(u16From(tr("My colours")), {}));
        if (_editor.palette(_list) == nullptr) return;
    }
    _filter->clear();
    takeEdit(withInserted(entries(), before, colors));
}

void PalettesWidget::addPanelColor()
{
    if (!_color.calibratedRGB()) {
        showRemark(tr("A pattern cannot be kept in a list."), RemarkKind::failure);
        return;
    }
    const auto selected = _view->selectedPlaces();
    const std::size_t before = selected.empty() ? entries().size() : selected.back() + 1;
    const bool canUndo = _editor.canUndo();
    const std::size_t count = entries().size();
    addColors(before, {PaletteEntry(proposedName(_color, entries()), _color)});
    const auto added = _view->selectedPlaces();
    if ((!canUndo && !_editor.canUndo()) || entries().size() <= count || added.size() != 1) return;
    if (_color.alphaComponent() < 1 && _remark->text().isEmpty()) {
        showRemark(tr("A list keeps no opacity; the colour was added without it."),
                   RemarkKind::news);
    }
    _view->setFocus();
    _view->renameAt(added.front());
}

void PalettesWidget::removeSelected()
{
    const auto places = _view->selectedPlaces();
    if (places.empty()) return;
    const std::size_t first = places.front();
    takeEdit(withRemoved(entries(), places));
    // The next one, so that Delete can go on.
    if (!entries().empty()) _view->selectPlaces({std::min(first, entries().size() - 1)});
}

void PalettesWidget::moveSelected(std::size_t before)
{
    takeEdit(withMoved(entries(), _view->selectedPlaces(), before));
}

void PalettesWidget::renameEntry(std::size_t place, const QString& name)
{
    EntryEdit edit = withRenamed(entries(), place, u16From(name));
    if (edit.places.empty()) return;
    const std::u16string given = edit.entries[place].name();
    const bool isOther = !tidyName(u16From(name)).empty() && given != tidyName(u16From(name));
    takeEdit(std::move(edit));
    if (isOther && _remark->text().isEmpty()) {
        showRemark(tr("The name was taken; the colour is called \"%1\".").arg(qStringFrom(given)),
                   RemarkKind::news);
    }
}

bool PalettesWidget::dropColor(const QMimeData& dropped, std::size_t before)
{
    const ColorOffer offer = colorFromMimeData(dropped);
    if (offer.color) {
        addColors(before, {PaletteEntry(proposedName(*offer.color, entries()), *offer.color)});
    }
    if (!offer.remark.isEmpty()) {
        showRemark(offer.remark, offer.color ? RemarkKind::news : RemarkKind::failure);
    }
    return offer.color.has_value();
}

void PalettesWidget::makeList()
{
    const EditOutcome outcome = _editor.add(u16From(tr("New list")), {});
    take(outcome);
    // That "New list" was taken is nothing to tell: the name is about to be typed.
    if (!outcome.done) return;
    showRemark({}, RemarkKind::news);
    beginListRename();
}

void PalettesWidget::copyList()
{
    const EditOutcome outcome =
        _editor.add(u16From(tr("%1 copy").arg(nameOfList())), PaletteEntries(entries()));
    take(outcome);
    if (!outcome.done) return;
    showRemark({}, RemarkKind::news);
    beginListRename();
}

void PalettesWidget::removeList()
{
    const QString name = nameOfList();
    const EditOutcome outcome = _editor.remove(_list);
    take(outcome);
    if (outcome.done) {
        showRemark(tr("\"%1\" has been removed. Undo brings it back.").arg(name), RemarkKind::news);
    }
}

void PalettesWidget::importFiles(const QStringList& paths)
{
    QStringList remarks;
    bool hasFailed = false;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        QFile file(path);
        // Only what is a plain file: a pipe would keep the panel waiting.
        if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly)) {
            remarks.append(tr("\"%1\" cannot be read.").arg(info.fileName()));
            hasFailed = true;
            continue;
        }
        const QByteArray bytes = file.read(largestFile);
        const ColorListReading reading =
            readColorList({bytes.constData(), static_cast<std::size_t>(bytes.size())},
                          info.fileName().toStdString());
        if (!reading.list) {
            remarks.append(
                tr("\"%1\" is not a colour list that can be read. Supported are palettes "
                   "of GIMP and KDE, CSS, SCSS, JSON, swatch exchange files, and text "
                   "with one colour a line.")
                    .arg(info.fileName()));
            hasFailed = true;
            continue;
        }
        std::u16string name = reading.list->name();
        if (tidyName(name).empty()) name = u16From(info.completeBaseName());
        const EditOutcome outcome = _editor.add(name, entriesOfList(*reading.list));
        take(outcome);
        hasFailed = hasFailed || !outcome.done;
        if (!outcome.done) {
            remarks.append(textOfRemarks(outcome, folder()));
            continue;
        }
        remarks.append(tr("\"%1\" has been imported.").arg(nameOfList()));
        if (reading.skipped > 0) {
            remarks.append(tr("Lines that are no colours were left out: %1.").arg(reading.skipped));
        }
    }
    showRemark(remarks.join(u' '), hasFailed ? RemarkKind::failure : RemarkKind::news);
}

void PalettesWidget::saveCopy(const QString& path)
{
    const std::u16string name = u16From(nameOfList());
    const ListFormat* ofEnding = listFormatOfFile(path.toStdString());
    const ListFormat& format = ofEnding != nullptr ? *ofEnding : listFormats().front();
    const bool saved = _files.writeForOthers(QFile::encodeName(path).toStdString(),
                                             format.write(*listOfEntries(name, entries())));
    showRemark(saved ? tr("Saved as %1.").arg(path)
                     : tr("%1 could not be written. May you write there, and is there room on the "
                          "disk?")
                           .arg(path),
               saved ? RemarkKind::news : RemarkKind::failure);
}

void PalettesWidget::chooseFilesToImport()
{
    importFiles(QFileDialog::getOpenFileNames(this, tr("Import palette files"), {},
                                              ListFileFilters::forReading()));
}

void PalettesWidget::chooseFileToSave()
{
    QString proposed = nameOfList();
    proposed.replace(u'/', u'-');
    QFileDialog dialog(this, tr("Save a copy"), {}, ListFileFilters::forWriting());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const auto useFormat = [&dialog](const ListFormat& format, const QString& name) {
        const QString named = ListFileFilters::withEnding(name, format);
        dialog.setDefaultSuffix(QFileInfo(named).suffix());
        dialog.selectFile(named);
    };
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        const ListFormat* format = ListFileFilters::formatOf(filter);
        if (format != nullptr)
            useFormat(*format, QFileInfo(dialog.selectedFiles().value(0)).fileName());
    });
    useFormat(listFormats().front(), proposed);
    if (dialog.exec() == QDialog::Accepted) saveCopy(dialog.selectedFiles().value(0));
}

void PalettesWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasUrls()) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void PalettesWidget::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) paths.append(url.toLocalFile());
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (paths.isEmpty()) {
        showRemark(tr("Only files of this computer can be imported."), RemarkKind::failure);
    } else {
        importFiles(paths);
    }
}

QString PalettesWidget::nameOfList() const
{
    const EditablePalette* palette = _editor.palette(_list);
    return palette != nullptr ? qStringFrom(palette->name) : QString();
}

QString PalettesWidget::folder() const
{
    const auto folders = _store.folders();
    return folders.empty() ? tr("the folder of palettes")
                           : QFile::decodeName(folders.front().c_str());
}

}  // namespace vantorel
