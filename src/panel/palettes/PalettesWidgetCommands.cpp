#include "hosts/qt/QtColors.h"
#include "listformats/ListReader.h"
#include "paletteedit/FreeNames.h"
#include "paletteedit/ProposedName.h"
#include "panel/palettes/ListFileFilters.h"
#include "panel/palettes/PalettesWidget.h"
#include "result/HarmlessLine.h"

#include <QDragEnterEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QUrl>

#include <algorithm>

/// The commands of the Palettes page.
namespace vantorel {
namespace {

/// Larger files are rejected unread; nobody makes palettes that big.
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
        // Claims the page's keys ahead of the panel's commands.
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
    // If there is no typing to undo, the key undoes a step of the page.
    const bool isFieldsKey =
        field != nullptr && (field->isUndoAvailable() || field->isRedoAvailable() ||
                             !field->text().isEmpty() || field != _filter);
    if (QAction* action = _commands->actionFor(*key, isFieldsKey)) {
        if (action->isEnabled()) action->trigger();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool PalettesWidget::performKey(const QKeyEvent& event)
{
    QAction* action = _commands->actionFor(event, false);
    if (action == nullptr) return false;
    if (action->isEnabled()) action->trigger();
    return true;
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
    _message->showMessages(outcome.messages,
                           outcome.hasFailed() ? MessageKind::failure : MessageKind::news);
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
        _message->showMessage({phrase("a pattern cannot be added to a list")},
                              MessageKind::failure);
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
    if (_color.alphaComponent() < 1 && _message->text().isEmpty()) {
        _message->showMessage(
            {phrase("lists store no opacity, so the colour was added without it")},
            MessageKind::news);
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
    // Selects the next one, so that Delete can be repeated.
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
    if (isOther && _message->text().isEmpty()) {
        _message->showMessage({phrase("the name was taken, so the colour is called \"%1\"",
                                      excerpt(qStringFrom(given).toStdString()))},
                              MessageKind::news);
    }
}

void PalettesWidget::takeDrop(const ColorOffer& offer, std::size_t before)
{
    if (offer.color) {
        addColors(before,
                  {PaletteEntry(proposedName(*offer.color, _session.entries()), *offer.color)});
    }
    if (!offer.message.isEmpty())
        _message->showMessage(offer.message,
                              offer.color ? MessageKind::news : MessageKind::failure);
}

void PalettesWidget::startList(const QString& name, const PaletteEntries& entries)
{
    if (!_session.addList(u16From(name), entries).done) return;
    // The user is about to type a name, so whether this one was taken does not matter.
    _message->showMessages({}, MessageKind::news);
    _lists->beginRename(_session.listName());
}

void PalettesWidget::removeList()
{
    const std::string name = excerpt(_session.listName().toStdString());
    if (!_session.removeList().done) return;
    _message->showMessage(
        {phrase("\"%1\" has been removed", name), phrase("choose Undo to restore it")},
        MessageKind::news);
}

void PalettesWidget::importFiles(const QStringList& paths)
{
    std::vector<Message> messages;
    bool hasFailed = false;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        const std::string fileName = info.fileName().toStdString();
        QFile file(path);
        // Regular files only: reading a pipe could block the panel.
        if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly)) {
            messages.push_back(
                {phrase("\"%1\" cannot be read", excerpt(fileName)),
                 phrase("check that it is a file of at most 64 MiB that you can read")});
            hasFailed = true;
            continue;
        }
        const QByteArray bytes = file.read(largestFile);
        const Result<ListFile> read =
            readColorList({bytes.constData(), static_cast<std::size_t>(bytes.size())}, fileName);
        if (!read) {
            messages.push_back(
                {phrase("\"%1\" is not a colour list that can be read", excerpt(fileName)),
                 phrase("use a palette of GIMP or KDE, CSS, SCSS, JSON, a swatch exchange file, or "
                        "a text with one colour per line")});
            hasFailed = true;
            continue;
        }
        std::u16string name = read->list->name();
        if (tidyName(name).empty()) name = u16From(info.completeBaseName());
        const EditOutcome outcome = _session.addList(name, entriesOfList(*read->list));
        hasFailed = hasFailed || !outcome.done;
        if (!outcome.done) {
            messages.insert(messages.end(), outcome.messages.begin(), outcome.messages.end());
            continue;
        }
        messages.push_back(
            {phrase("\"%1\" has been imported", excerpt(_session.listName().toStdString()))});
        if (read->skipped > 0)
            messages.push_back(
                {phrase("lines that are not colours were left out: %1", read->skipped)});
    }
    _message->showMessages(messages, hasFailed ? MessageKind::failure : MessageKind::news);
}

void PalettesWidget::saveCopy(const QString& path)
{
    const std::u16string name = u16From(_session.listName());
    const ListFormat* ofEnding = listFormatOfFile(path.toStdString());
    const ListFormat& format = ofEnding != nullptr ? *ofEnding : listFormats().front();
    const bool saved =
        _files.writeForOthers(QFile::encodeName(path).toStdString(),
                              format.write(*listOfEntries(name, _session.entries())));
    if (saved) {
        _message->showMessage({phrase("saved as %1", path.toStdString())}, MessageKind::news);
    } else {
        _message->showMessage(
            {phrase("\"%1\" could not be written", path.toStdString()),
             phrase("check that you can write to its folder and that the disk has room")},
            MessageKind::failure);
    }
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
        _message->showMessage({phrase("only files on this computer can be imported")},
                              MessageKind::failure);
    } else {
        importFiles(paths);
    }
}

}  // namespace vantorel
