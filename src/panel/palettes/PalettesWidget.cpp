#include "panel/palettes/PalettesWidget.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/palettes/PaletteControls.h"
#include "panel/palettes/PictureColors.h"
#include "panel/palettes/PictureData.h"
#include "panel/widgets/CodeWithOpacity.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/StyleFields.h"
#include "result/HarmlessLine.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <unordered_set>

namespace vantorel {
namespace {

constexpr QLatin1String listKey("list");
constexpr QLatin1String gridKey("grid");

/// The least height of the row of controls at the top, in points.
constexpr int headPoints = 28;

}  // namespace

PalettesWidget::PalettesWidget(HostFiles& files, PaletteFileStore& store)
    : _session(files, store), _updates(files, store, _session)
{
    setObjectName(QStringLiteral("palettesPage"));
    setAccessibleName(tr("Palettes"));
    setAcceptDrops(true);
    makeControls();
    layOutControls();
    _keys = new PaletteKeys(*this, *_commands, *_filter);
    _edits = new PaletteEdits(*this, _session, *_filter, *_view, *_message);
    _files = new PaletteFiles(*this, files, _session, *_message);
    connectControls();
    connectSession();
    connectCommands();
    showCurrentList();
}

void PalettesWidget::makeControls()
{
    _commands = new PaletteCommands(*this);
    _lists = new PaletteListChooser(this);
    _arrangements = new SegmentedChoice(this);
    _arrangements->setObjectName(QStringLiteral("paletteArrangement"));
    _arrangements->addChoice(listIcon(), tr("As a list"), listKey);
    _arrangements->addChoice(gridIcon(), tr("As a grid"), gridKey);
    _arrangements->setCurrentKey(listKey);
    _ownership = palettecontrols::newLabel(this, "paletteOwnership");
    _ownership->setWordWrap(true);
    _view = new PaletteEntriesView(this);
    _filter = new PaletteFilter(this, *_view);
    // Assistive technology lists the controls in the order of their stack.
    _filter->stackUnder(_view);
    _progress = new PaletteProgress(this);
    _message = new MessageLabel(this);
    _message->setObjectName(QStringLiteral("paletteMessage"));
    _named = palettecontrols::newLabel(this, "paletteNamed");
    _named->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    _named->setAlignment(Qt::AlignCenter);
}

void PalettesWidget::layOutControls()
{
    QToolButton* menuButton = palettecontrols::newButton(this);
    menuButton->setObjectName(QStringLiteral("paletteMenuButton"));
    menuButton->setIcon(moreIcon());
    menuButton->setAutoRaise(false);
    menuButton->setFixedSize(QSize(1, 1) * std::max(scaled(headPoints), controlHeight));
    menuButton->setToolTip(tr("Commands for lists and colours"));
    menuButton->setAccessibleName(tr("Commands for lists and colours"));
    menuButton->setPopupMode(QToolButton::InstantPopup);
    menuButton->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    menuButton->setMenu(_commands->menu());

    auto* rows = new QVBoxLayout(this);
    const int margin = scaled(palettecontrols::pageMargin);
    rows->setContentsMargins(margin, scaled(8), 0, 0);
    rows->setSpacing(scaled(8));
    const auto newRow = [&] {
        auto* row = new QHBoxLayout;
        row->setContentsMargins(0, 0, margin, 0);
        rows->addLayout(row);
        return row;
    };
    QHBoxLayout* head = newRow();
    head->setSpacing(scaled(4));
    head->addWidget(_lists, 1);
    head->addWidget(_arrangements);
    head->addWidget(menuButton);
    for (QWidget* widget : std::initializer_list<QWidget*>{_ownership, _filter})
        newRow()->addWidget(widget);
    _viewRow = newRow();
    _viewRow->addWidget(_view);
    rows->setStretchFactor(_viewRow, 1);
    for (QWidget* widget : std::initializer_list<QWidget*>{_progress, _message})
        newRow()->addWidget(widget);
    QHBoxLayout* foot = newRow();
    foot->setSpacing(scaled(4));
    std::vector<QWidget*> tabOrder{_lists, _arrangements, menuButton, _filter, _view};
    const auto addButton = [&](Command command) {
        QToolButton* button = palettecontrols::newButton(this, _commands->action(command));
        foot->addWidget(button);
        tabOrder.push_back(button);
    };
    for (const Command command : {Command::addColor, Command::removeColors, Command::recolor})
        addButton(command);
    foot->addWidget(_named, 1);
    for (const Command command : {Command::undo, Command::redo})
        addButton(command);
    for (std::size_t i = 1; i < tabOrder.size(); ++i)
        setTabOrder(tabOrder[i - 1], tabOrder[i]);
}

void PalettesWidget::connectControls()
{
    connect(_lists, &PaletteListChooser::listChosen, this, [this](PaletteId list) {
        _session.showList(list);
        _filter->clear();
        showCurrentList();
    });
    connect(_lists, &PaletteListChooser::nameEntered, this, [this](const QString& name) {
        if (name != _session.listName()) _session.renameList(u16From(name));
    });
    connect(_filter, &PaletteFilter::filtered, this, &PalettesWidget::showState);
    connect(_arrangements, &SegmentedChoice::chosen, this, [this](const QString& key) {
        const auto arrangement = key == gridKey ? PaletteEntriesView::Arrangement::grid
                                                : PaletteEntriesView::Arrangement::list;
        setArrangement(arrangement);
        emit arrangementChosen(arrangement);
    });
    connect(_view, &PaletteEntriesView::namedEntryChanged, this, [this](const QString& text) {
        _named->setText(text);
        // The label is narrow; the text is also the tool tip of the entry.
        _named->setToolTip(plainToolTip(text));
    });
    connect(_view, &PaletteEntriesView::colorChosen, this, [this](std::size_t place) {
        emit colorChosen(_view->entriesModel().entries()[place].color());
    });
    connect(_view, &PaletteEntriesView::selectionMoved, _edits, &PaletteEdits::moveSelected);
    connect(_view, &PaletteEntriesView::colorDropped, _edits, &PaletteEdits::takeDrop);
    connect(&_view->entriesModel(), &PaletteEntriesModel::nameEntered, _edits,
            &PaletteEdits::rename);
    connect(_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PalettesWidget::showState);
    _view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(_view, &QWidget::customContextMenuRequested, this, [this](QPoint at) {
        _commands->colorMenu()->popup(_view->viewport()->mapToGlobal(at));
    });
    connect(_files, &PaletteFiles::pictureOpened, this, &PalettesWidget::showPicture);
    connect(_progress, &PaletteProgress::stopPressed, &_updates, &PaletteUpdates::readNoMore);
}

void PalettesWidget::connectSession()
{
    connect(&_session, &PaletteSession::stepTaken, this, &PalettesWidget::showStep);
    connect(&_updates, &PaletteUpdates::progressed, _progress, &PaletteProgress::showProgress);
    connect(&_updates, &PaletteUpdates::rested, _progress, &QWidget::hide);
    connect(&_updates, &PaletteUpdates::foundLists, this, &PalettesWidget::showCurrentList);
    connect(&_updates, &PaletteUpdates::foundColors, this, &PalettesWidget::showEntries);
    connect(&_updates, &PaletteUpdates::refreshed, this, &PalettesWidget::showRefreshed);
}

void PalettesWidget::connectCommands()
{
    const auto on = [this](Command command, auto reaction) {
        connect(_commands->action(command), &QAction::triggered, this, reaction);
    };
    on(Command::newList, [this] { startList(tr("New list"), {}); });
    on(Command::renameList, [this] { _lists->beginRename(_session.listName()); });
    on(Command::copyList, [this] {
        startList(tr("%1 copy").arg(_session.listName()), PaletteEntries(_session.entries()));
    });
    on(Command::removeList, [this] { removeList(); });
    on(Command::importFiles, [this] { _files->chooseImport(); });
    on(Command::openPicture, [this] { _files->choosePicture(); });
    on(Command::saveCopy, [this] { _files->chooseCopy(); });
    on(Command::addColor, [this] { _edits->addPanelColor(); });
    on(Command::pickColors, [this] { emit picksRequested(); });
    on(Command::renameColor, [this] { _edits->beginRename(); });
    on(Command::recolor, [this] { _edits->recolorSelected(); });
    on(Command::moveUp, [this] { _edits->stepSelected(-1); });
    on(Command::moveDown, [this] { _edits->stepSelected(1); });
    on(Command::removeColors, [this] { _edits->removeSelected(); });
    on(Command::find, [this] { _filter->open(); });
    on(Command::undo, [this] { _session.undo(); });
    on(Command::redo, [this] { _session.redo(); });
}

void PalettesWidget::setColor(const HostColor& color)
{
    _edits->setColor(color);
    _commands->setPanelColor(plainHexCode(color.colorWithAlphaComponent(1)));
}

void PalettesWidget::setArrangement(PaletteEntriesView::Arrangement arrangement)
{
    _arrangements->setCurrentKey(arrangement == PaletteEntriesView::Arrangement::grid ? gridKey
                                                                                      : listKey);
    // The scroll bar of a grid lies in the margin.
    const bool isGrid = arrangement == PaletteEntriesView::Arrangement::grid;
    _viewRow->setContentsMargins(0, 0, isGrid ? 0 : scaled(palettecontrols::pageMargin), 0);
    _view->setArrangement(arrangement);
}

void PalettesWidget::setWatching(bool flag)
{
    if (flag) {
        _updates.start();
    } else {
        _updates.stop();
    }
}

void PalettesWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // Some file systems do not report changes.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) _updates.lookAgain();
}

void PalettesWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasUrls() && !offersPicture(*event->mimeData())) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void PalettesWidget::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    takeDropped(*event->mimeData());
}

void PalettesWidget::takeDropped(const QMimeData& dropped)
{
    const QList<QUrl> urls = dropped.urls();
    const bool hasFile =
        std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
    // A browser offers the picture beside its address.
    if (!hasFile && offersPicture(dropped)) {
        showPicture(pictureIn(dropped), {});
    } else {
        _files->importUrls(urls);
    }
}

void PalettesWidget::showPicture(const QImage& picture, const QString& name)
{
    if (picture.isNull()) {
        _message->showMessage({phrase("the picture cannot be read"),
                               phrase("save it as PNG or JPEG, and open the file")},
                              MessageKind::failure);
        return;
    }
    auto* window = new PictureColors(picture, name.isEmpty() ? tr("Picture") : name, this);
    connect(window, &PictureColors::colorChosen, this, &PalettesWidget::colorChosen);
    connect(window, &PictureColors::kept, this,
            [this, window](const QString& list, const PaletteEntries& entries) {
                window->close();
                startList(list, entries);
            });
    window->show();
}

void PalettesWidget::showCurrentList()
{
    _session.showList(_lists->showLists(_session.palettes(), _session.listId()));
    _updates.followList();
    _view->entriesModel().setEntries(_session.entriesSoFar());
    const EditablePalette* list = _session.list();
    const bool isForeign = list != nullptr && !list->isOwn();
    _ownership->setVisible(isForeign);
    if (isForeign) {
        _ownership->setText(tr("From %1, read-only. Your first change makes a list of your own.")
                                .arg(qStringFrom(list->program)));
    }
    showState();
}

void PalettesWidget::showEntries()
{
    _view->entriesModel().extendEntries(_session.entriesSoFar());
    showState();
}

void PalettesWidget::showState()
{
    const EditablePalette* list = _session.list();
    // To edit a list needs all of it.
    const bool isWhole = !_session.isPartlyRead();
    _commands->enableFor({list != nullptr && isWhole, list != nullptr && list->isOwn() && isWhole,
                          _view->selectionModel()->hasSelection(), _session.canUndo(),
                          _session.canRedo()});

    const int shown = _view->entriesModel().rowCount();
    const auto all = static_cast<qlonglong>(_view->entriesModel().entries().size());
    const QString allText =
        locale().toString(all) + (isWhole ? QString() : QStringLiteral("\u2026"));
    _lists->showCount(shown == all ? allText
                                   : tr("%1 of %2").arg(locale().toString(shown), allText));

    QString note;
    if (list == nullptr) {
        note = tr("There is no list yet. Create one, or drop a palette file here.");
    } else if (all == 0) {
        note = tr("The list is empty. The + adds the panel's colour.");
    } else if (shown == 0) {
        note = tr("No colour name or hex code matches.");
    }
    _view->setNote(note);
}

void PalettesWidget::showRefreshed(const std::vector<EditablePalette>& changed)
{
    const PaletteId shown = _session.listId();
    const auto found = std::find_if(changed.begin(), changed.end(),
                                    [shown](const auto& palette) { return palette.id == shown; });
    const PaletteEntries& shownEntries = _view->entriesModel().entries();
    std::unordered_set<std::u16string> selected;
    for (const std::size_t place : _view->selectedPlaces())
        selected.insert(shownEntries[place].name());
    showCurrentList();
    if (found == changed.end()) return;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < shownEntries.size() && !selected.empty(); ++i) {
        if (selected.contains(shownEntries[i].name())) places.push_back(i);
    }
    _view->selectPlaces(places);
    const std::string name = excerpt(qStringFrom(found->name).toStdString());
    _message->showMessage(
        {_session.listId() != shown ? phrase("\"%1\" has been removed by another program", name)
                                    : phrase("\"%1\" has been changed by another program", name)},
        MessageKind::news);
}

void PalettesWidget::showStep(const EditOutcome& outcome, const std::vector<std::size_t>& places)
{
    if (_session.listId() != _lists->shownList()) _filter->clear();
    showCurrentList();
    if (outcome.done && !places.empty()) _view->selectPlaces(places);
    _message->showMessages(outcome.messages,
                           outcome.hasFailed() ? MessageKind::failure : MessageKind::news);
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

}  // namespace vantorel
