#include "panel/palettes/PalettesWidget.h"

#include "hosts/qt/ClipboardLineEdit.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "result/HarmlessLine.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <unordered_set>

namespace vantorel {
namespace {

constexpr int iconPoints = 16;

QLabel* newLabel(QWidget* parent, const char* name)
{
    auto* label = new PlainLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(fontOfSize(10));
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QToolButton* newButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIconSize(QSize(scaled(iconPoints), scaled(iconPoints)));
    return button;
}

QToolButton* newButton(QWidget* parent, QAction* action)
{
    QToolButton* button = newButton(parent);
    button->setDefaultAction(action);
    button->setAccessibleName(action->text());
    // Only icons, because the text "Add" would not fit beside the others.
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    return button;
}

}  // namespace

PalettesWidget::PalettesWidget(HostFiles& files, PaletteFileStore& store)
    : _files(files),
      _session(files, store),
      _refresh(_session),
      _loading(_session),
      _watch(files, store)
{
    setObjectName(QStringLiteral("palettesPage"));
    setAccessibleName(tr("Palettes"));
    setAcceptDrops(true);
    makeControls();
    makeProgress();
    connectCommands();
    layOutControls();
    connect(&_session, &PaletteSession::stepTaken, this, &PalettesWidget::showStep);
    connect(&_watch, &PaletteWatch::changed, this, &PalettesWidget::lookAtDisk);
    connect(&_refresh, &PaletteRefresh::progressed, this, [this](qsizetype seen, qsizetype all) {
        showProgress(tr("%1 of %2 lists").arg(locale().toString(seen), locale().toString(all)));
    });
    connect(&_refresh, &PaletteRefresh::foundMore, this, &PalettesWidget::showCurrentList);
    connect(&_refresh, &PaletteRefresh::finished, this, &PalettesWidget::showRefreshed);
    connect(&_loading, &PaletteLoading::progressed, this,
            [this](int percent) { showProgress(tr("%1 % of the list").arg(percent)); });
    connect(&_loading, &PaletteLoading::foundMore, this, &PalettesWidget::showEntries);
    connect(&_loading, &PaletteLoading::finished, this, [this] {
        hideProgress();
        showEntries();
    });
    showCurrentList();
}

void PalettesWidget::makeControls()
{
    _lists = new PaletteListChooser(this);
    connect(_lists, &PaletteListChooser::listChosen, this, [this](PaletteId list) {
        _session.showList(list);
        _filter->clear();
        showCurrentList();
    });
    connect(_lists, &PaletteListChooser::nameEntered, this, [this](const QString& name) {
        if (name != _session.listName()) _session.renameList(u16From(name));
    });

    _ownership = newLabel(this, "paletteOwnership");
    _ownership->setWordWrap(true);

    _filter = new ClipboardLineEdit(this);
    _filter->setObjectName(QStringLiteral("paletteFilter"));
    _filter->setPlaceholderText(tr("Find a name or hex code"));
    _filter->setAccessibleName(tr("Find a name or hex code"));
    _filter->setToolTip(tr("Shows only colours with this in their name or hex code (Ctrl+F)"));
    _filter->setClearButtonEnabled(true);
    _filter->setFont(fontOfSize(11));
    connect(_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        const auto selected = _view->selectedPlaces();
        _view->entriesModel().setFilter(text.trimmed());
        _view->selectPlaces(selected);
        showState();
    });

    _view = new PaletteEntriesView(this);
    connect(&_view->entriesModel(), &PaletteEntriesModel::nameEntered, this,
            &PalettesWidget::renameEntry);
    connect(_view, &PaletteEntriesView::colorChosen, this, [this](std::size_t place) {
        emit colorChosen(_view->entriesModel().entries()[place].color());
    });
    connect(_view, &PaletteEntriesView::selectionMoved, this, [this](std::size_t before) {
        _session.edit(withMoved(_session.entries(), _view->selectedPlaces(), before));
    });
    connect(_view, &PaletteEntriesView::colorDropped, this, &PalettesWidget::takeDrop);
    connect(_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PalettesWidget::showState);

    _message = new MessageLabel(this);
    _message->setObjectName(QStringLiteral("paletteMessage"));
    _count = newLabel(this, "paletteCount");
    _count->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    _count->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
}

void PalettesWidget::makeProgress()
{
    _progress = new QWidget(this);
    _progress->setObjectName(QStringLiteral("paletteProgress"));
    _progressText = newLabel(_progress, "paletteProgressText");
    auto* stop = newButton(_progress);
    stop->setObjectName(QStringLiteral("paletteStop"));
    stop->setText(tr("Stop"));
    stop->setAccessibleName(tr("Stop"));
    stop->setToolTip(tr("Read no more. What has been read so far can be used."));
    connect(stop, &QToolButton::clicked, &_refresh, &PaletteRefresh::stop);
    connect(stop, &QToolButton::clicked, &_loading, &PaletteLoading::stop);
    auto* row = new QHBoxLayout(_progress);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(_progressText, 1);
    row->addWidget(stop);
    _progress->hide();
}

void PalettesWidget::layOutControls()
{
    QToolButton* menuButton = newButton(this);
    menuButton->setObjectName(QStringLiteral("paletteMenuButton"));
    menuButton->setIcon(moreIcon());
    menuButton->setToolTip(tr("Commands for lists and colours"));
    menuButton->setAccessibleName(tr("Commands for lists and colours"));
    menuButton->setPopupMode(QToolButton::InstantPopup);
    menuButton->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    menuButton->setMenu(_commands->menu());

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(scaled(10), scaled(4), scaled(10), scaled(2));
    rows->setSpacing(scaled(4));
    auto* head = new QHBoxLayout;
    head->setSpacing(scaled(2));
    head->addWidget(_lists, 1);
    head->addWidget(menuButton);
    rows->addLayout(head);
    rows->addWidget(_ownership);
    rows->addWidget(_filter);
    rows->addWidget(_view, 1);
    rows->addWidget(_progress);
    rows->addWidget(_message);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(0);
    std::vector<QWidget*> tabOrder{_lists, menuButton, _filter, _view};
    for (const Command command : {Command::addColor, Command::removeColors, Command::recolor,
                                  Command::undo, Command::redo}) {
        QToolButton* button = newButton(this, _commands->action(command));
        foot->addWidget(button);
        tabOrder.push_back(button);
    }
    foot->addWidget(_count, 1);
    rows->addLayout(foot);

    for (QWidget* widget : findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus) widget->installEventFilter(this);
    }
    for (std::size_t i = 1; i < tabOrder.size(); ++i)
        setTabOrder(tabOrder[i - 1], tabOrder[i]);
}

void PalettesWidget::showCurrentList()
{
    _session.showList(_lists->showLists(_session.palettes(), _session.listId()));
    _loading.start();
    _view->entriesModel().setEntries(_session.entriesSoFar());
    const EditablePalette* list = _session.list();
    const bool isForeign = list != nullptr && !list->isOwn();
    _ownership->setVisible(isForeign);
    if (isForeign) {
        _ownership->setText(tr("From %1, read-only. Your first change makes a list of your own.")
                                .arg(qStringFrom(list->program)));
    }
    _watch.watchFile(list != nullptr ? list->path : std::string());
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
    _count->setText(shown == all ? allText : tr("%1 of %2").arg(locale().toString(shown), allText));
    _count->setToolTip(tr("Colours in the list"));
    _count->setAccessibleName(tr("Colours in the list: %1").arg(_count->text()));

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

void PalettesWidget::setColor(const HostColor& color)
{
    _color = color;
    _commands->setPanelColor(qStringFrom(hexCodeOf(color)));
}

void PalettesWidget::setWatching(bool flag)
{
    if (flag) {
        _watch.start();
        lookAtDisk();
    } else {
        _watch.stop();
        _refresh.stop();
        _loading.pause();
        hideProgress();
    }
}

void PalettesWidget::showProgress(const QString& text)
{
    _progress->show();
    _progressText->setText(text);
    _progressText->setAccessibleName(tr("Read so far: %1").arg(text));
}

void PalettesWidget::hideProgress()
{
    _progress->setVisible(_refresh.isRunning() || _loading.isRunning());
}

void PalettesWidget::showRefreshed(const std::vector<EditablePalette>& changed)
{
    hideProgress();
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

}  // namespace vantorel
