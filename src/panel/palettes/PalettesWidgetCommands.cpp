#include "hosts/qt/QtColors.h"
#include "listformats/ListReader.h"
#include "paletteedit/FreeNames.h"
#include "paletteedit/ProposedName.h"
#include "panel/palettes/ListFileFilters.h"
#include "panel/palettes/PaletteRemarks.h"
#include "panel/palettes/PalettesWidget.h"

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

void PalettesWidget::connectCommands()
{
    _commands = new PaletteCommands(*this);
    const auto on = [this](Command command, auto reaction) {
        connect(_commands->action(command), &QAction::triggered, this, reaction);
    };
    on(Command::newList, [this] { startList(tr("New list"), {}); });
    on(Command::renameList, [this] { _lists->beginRename(_session.listName()); });
    on(Command::copyList, [this] {
        startList(tr("%1 copy").arg(_session.listName()), PaletteEntries(_session.entries()));
    });
    on(Command::removeList, [this] { removeList(); });
    on(Command::importFiles, [this] { chooseFilesToImport(); });
    on(Command::saveCopy, [this] { chooseFileToSave(); });
    on(Command::addColor, [this] { addPanelColor(); });
    on(Command::renameColor, [this] {
        const auto places = _view->selectedPlaces();
        if (!places.empty()) _view->renameAt(places.front());
    });
    on(Command::recolor, [this] {
        _session.edit(withRecolored(_session.entries(), _view->selectedPlaces(), _color));
    });
    on(Command::moveUp,
       [this] { _session.edit(withStepped(_session.entries(), _view->selectedPlaces(), -1)); });
    on(Command::moveDown,
       [this] { _session.edit(withStepped(_session.entries(), _view->selectedPlaces(), 1)); });
    on(Command::removeColors, [this] { removeSelected(); });
    on(Command::find, [this] {
        _filter->setFocus();
        _filter->selectAll();
    });
    on(Command::undo, [this] { _session.undo(); });
    on(Command::redo, [this] { _session.redo(); });

    _view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(_view, &QWidget::customContextMenuRequested, this, [this](QPoint at) {
        _commands->colorMenu()->popup(_view->viewport()->mapToGlobal(at));
    });
}

bool PalettesWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Claims the keys of the page, so that the panel's commands do not get them.
        auto* key = static_cast<QKeyEvent*>(event);
        const bool inField = qobject_cast<QLineEdit*>(focusWidget()) != nullptr;
        if (_commands->actionFor(*key, inField) != nullptr) {
            key->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool PalettesWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    auto* field = qobject_cast<QLineEdit*>(watched);
    if (watched == _filter && key->key() == Qt::Key_Escape && !_filter->text().isEmpty()) {
        _filter->clear();
        return true;
    }
    if (watched == _filter && key->key() == Qt::Key_Down && _view->entriesModel().rowCount() > 0) {
        _view->setFocus();
        if (!_view->currentIndex().isValid()) {
            _view->setCurrentIndex(_view->entriesModel().index(0));
        }
        return true;
    }
    // Where there is no typing to undo, the page's own step is meant.
    const bool isFieldsKey =
        field != nullptr && (field->isUndoAvailable() || field->isRedoAvailable() ||
                             !field->text().isEmpty() || field != _filter);
    if (QAction* action = _commands->actionFor(*key, isFieldsKey)) {
        if (action->isEnabled()) action->trigger();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void PalettesWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // Some file systems do not report changes.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && _watch.isOn())
        lookAtDisk();
}

void PalettesWidget::showStep(const EditOutcome& outcome, const std::vector<std::size_t>& places)
{
    if (_session.listId() != _lists->shownList()) _filter->clear();
    showCurrentList();
    if (outcome.done && !places.empty()) _view->selectPlaces(places);
    _remark->showRemark(textOfRemarks(outcome, _session.folder()),
                        isFailure(outcome) ? RemarkKind::failure : RemarkKind::news);
}

void PalettesWidget::addColors(std::size_t before, const PaletteEntries& colors)
{
    if (_session.list() == nullptr) {
        _session.addList(u16From(tr("My colours")), {});
        if (_session.list() == nullptr) return;
    }
    _filter->clear();
    _session.edit(withInserted(_session.entries(), before, colors));
}

void PalettesWidget::addPanelColor()
{
    if (!_color.calibratedRGB()) {
        _remark->showRemark(tr("A pattern cannot be kept in a list."), RemarkKind::failure);
        return;
    }
    const auto selected = _view->selectedPlaces();
    const std::size_t before = selected.empty() ? _session.entries().size() : selected.back() + 1;
    const bool canUndo = _session.canUndo();
    const std::size_t count = _session.entries().size();
    addColors(before, {PaletteEntry(proposedName(_color, _session.entries()), _color)});
    const auto added = _view->selectedPlaces();
    if ((!canUndo && !_session.canUndo()) || _session.entries().size() <= count ||
        added.size() != 1)
        return;
    if (_color.alphaComponent() < 1 && _remark->text().isEmpty()) {
        _remark->showRemark(tr("A list keeps no opacity; the colour was added without it."),
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
    _session.edit(withRemoved(_session.entries(), places));
    // The next one, so that Delete can go on.
    if (!_session.entries().empty())
        _view->selectPlaces({std::min(first, _session.entries().size() - 1)});
}

void PalettesWidget::renameEntry(std::size_t place, const QString& name)
{
    EntryEdit edit = withRenamed(_session.entries(), place, u16From(name));
    if (edit.places.empty()) return;
    const std::u16string given = edit.entries[place].name();
    const bool isOther = !tidyName(u16From(name)).empty() && given != tidyName(u16From(name));
    _session.edit(std::move(edit));
    if (isOther && _remark->text().isEmpty()) {
        _remark->showRemark(
            tr("The name was taken; the colour is called \"%1\".").arg(qStringFrom(given)),
            RemarkKind::news);
    }
}

void PalettesWidget::takeDrop(const ColorOffer& offer, std::size_t before)
{
    if (offer.color) {
        addColors(before,
                  {PaletteEntry(proposedName(*offer.color, _session.entries()), *offer.color)});
    }
    if (!offer.remark.isEmpty()) {
        _remark->showRemark(offer.remark, offer.color ? RemarkKind::news : RemarkKind::failure);
    }
}

void PalettesWidget::startList(const QString& name, const PaletteEntries& entries)
{
    if (!_session.addList(u16From(name), entries).done) return;
    // That the name was taken is of no interest: another is about to be typed.
    _remark->showRemark({}, RemarkKind::news);
    _lists->beginRename(_session.listName());
}

void PalettesWidget::removeList()
{
    const QString name = _session.listName();
    if (!_session.removeList().done) return;
    _remark->showRemark(tr("\"%1\" has been removed. Undo brings it back.").arg(name),
                        RemarkKind::news);
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
        const Result<ListFile> read =
            readColorList({bytes.constData(), static_cast<std::size_t>(bytes.size())},
                          info.fileName().toStdString());
        if (!read) {
            remarks.append(
                tr("\"%1\" is not a colour list that can be read. Supported are palettes "
                   "of GIMP and KDE, CSS, SCSS, JSON, swatch exchange files, and text "
                   "with one colour a line.")
                    .arg(info.fileName()));
            hasFailed = true;
            continue;
        }
        std::u16string name = read->list->name();
        if (tidyName(name).empty()) name = u16From(info.completeBaseName());
        const EditOutcome outcome = _session.addList(name, entriesOfList(*read->list));
        hasFailed = hasFailed || !outcome.done;
        if (!outcome.done) {
            remarks.append(textOfRemarks(outcome, _session.folder()));
            continue;
        }
        remarks.append(tr("\"%1\" has been imported.").arg(_session.listName()));
        if (read->skipped > 0) {
            remarks.append(tr("Lines that are no colours were left out: %1.").arg(read->skipped));
        }
    }
    _remark->showRemark(remarks.join(u' '), hasFailed ? RemarkKind::failure : RemarkKind::news);
}

void PalettesWidget::saveCopy(const QString& path)
{
    const std::u16string name = u16From(_session.listName());
    const ListFormat* ofEnding = listFormatOfFile(path.toStdString());
    const ListFormat& format = ofEnding != nullptr ? *ofEnding : listFormats().front();
    const bool saved =
        _files.writeForOthers(QFile::encodeName(path).toStdString(),
                              format.write(*listOfEntries(name, _session.entries())));
    _remark->showRemark(
        saved ? tr("Saved as %1.").arg(path)
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
    QString proposed = _session.listName();
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
        _remark->showRemark(tr("Only files of this computer can be imported."),
                            RemarkKind::failure);
    } else {
        importFiles(paths);
    }
}

}  // namespace vantorel
