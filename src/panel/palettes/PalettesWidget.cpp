#include "panel/palettes/PalettesWidget.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace vantorel {
namespace {

constexpr std::chrono::milliseconds remarkTime{12000};
/// A program that saves a file touches its folder several times.
constexpr std::chrono::milliseconds settlingTime{60};
constexpr int iconPoints = 16;

QString shownName(const EditablePalette& palette)
{
    QString name = qStringFrom(palette.name);
    const QString program = qStringFrom(palette.program);
    if (palette.isOwn() || name.contains(u'(' + program)) return name;
    return QStringLiteral("%1 (%2)").arg(name, program);
}

QColor mixed(const QColor& ground, const QColor& color, double share)
{
    const auto channel = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {channel(ground.red(), color.red()), channel(ground.green(), color.green()),
            channel(ground.blue(), color.blue())};
}

/// The first of a folder and those around it that exists.
std::string nearestFolder(const HostFiles& files, std::string path)
{
    while (!path.empty() && files.kindAtPath(path) != HostFileKind::folder) {
        const std::size_t slash = path.rfind('/');
        path.resize(slash != std::string::npos ? slash : 0);
    }
    return path;
}

}  // namespace

PalettesWidget::PalettesWidget(HostFiles& files, PaletteFileStore& store, Choice choice)
    : _files(files),
      _store(store),
      _editor(
          files, store,
          [](const std::string& path) { return QFile::remove(QFile::decodeName(path.c_str())); }),
      _choice(std::move(choice))
{
    setObjectName(QStringLiteral("palettesPage"));
    setAccessibleName(tr("Palettes"));
    setAcceptDrops(true);
    makeControls();
    makeCommands();
    layOutControls();
    _remarkTimer.setSingleShot(true);
    connect(&_remarkTimer, &QTimer::timeout, this, [this] { showRemark({}, RemarkKind::news); });
    _lookTimer.setSingleShot(true);
    connect(&_lookTimer, &QTimer::timeout, this, [this] { lookAtDisk(); });
    showCurrentList();
}

void PalettesWidget::makeControls()
{
    _lists = new QComboBox(this);
    _lists->setObjectName(QStringLiteral("paletteLists"));
    _lists->setAccessibleName(tr("Colour list"));
    _lists->setToolTip(tr("The list on show"));
    _lists->setFont(fontOfSize(12));
    // As wide as the page, not as the longest name.
    _lists->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    _lists->setMinimumContentsLength(6);
    _lists->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(_lists, &QComboBox::activated, this, [this](int index) {
        _list = _lists->itemData(index).toULongLong();
        _filter->clear();
        showCurrentList();
    });

    _listName = new QLineEdit(_lists);
    _listName->setObjectName(QStringLiteral("paletteListName"));
    _listName->setAccessibleName(tr("Name of the list"));
    _listName->setMaxLength(200);
    _listName->hide();
    connect(_listName, &QLineEdit::editingFinished, this, [this] { endListRename(true); });

    _filter = new QLineEdit(this);
    _filter->setObjectName(QStringLiteral("paletteFilter"));
    _filter->setPlaceholderText(tr("Find a name or hex code"));
    _filter->setAccessibleName(tr("Find a name or hex code"));
    _filter->setToolTip(tr("Shows only colours with this in their name or hex code (Ctrl+F)"));
    _filter->setClearButtonEnabled(true);
    _filter->setFont(fontOfSize(11));
    connect(_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        const auto selected = _view->selectedPlaces();
        _model->setFilter(text.trimmed());
        _view->selectPlaces(selected);
        updateCommands();
    });

    _model = new PaletteEntriesModel(this);
    _model->setRename([this](std::size_t place, const QString& name) { renameEntry(place, name); });
    PaletteEntriesView::Reactions reactions;
    reactions.choose = [this](std::size_t place) { _choice(entries()[place].color()); };
    reactions.moveSelected = [this](std::size_t before) { moveSelected(before); };
    reactions.drop = [this](const QMimeData& dropped, std::size_t before) {
        return dropColor(dropped, before);
    };
    _view = new PaletteEntriesView(*_model, std::move(reactions), this);
    _view->setObjectName(QStringLiteral("paletteEntries"));
    connect(_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { updateCommands(); });

    const auto newLabel = [this](const char* name, double size) {
        auto* label = new QLabel(this);
        label->setObjectName(QString::fromLatin1(name));
        label->setFont(fontOfSize(size));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        return label;
    };
    _emptyNote = newLabel("paletteEmptyNote", 11);
    _emptyNote->setParent(_view->viewport());
    _emptyNote->setAlignment(Qt::AlignCenter);
    _emptyNote->setForegroundRole(QPalette::PlaceholderText);
    _emptyNote->setAttribute(Qt::WA_TransparentForMouseEvents);
    _ownership = newLabel("paletteOwnership", 10);
    _ownership->setForegroundRole(QPalette::PlaceholderText);
    _remark = newLabel("paletteRemark", 10);
    _remark->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _remark->setMargin(scaled(4));
    _remark->setAutoFillBackground(true);
    _remark->hide();
    _count = newLabel("paletteCount", 10);
    _count->setWordWrap(false);
    _count->setForegroundRole(QPalette::PlaceholderText);
    _count->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    _count->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
}

void PalettesWidget::layOutControls()
{
    const auto newButton = [this](QAction* action) {
        auto* button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setIconSize(QSize(scaled(iconPoints), scaled(iconPoints)));
        if (action != nullptr) {
            button->setDefaultAction(action);
            button->setAccessibleName(action->text());
            // Pictures alone; "Add" would not fit with the others.
            button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        }
        return button;
    };
    _menuButton = newButton(nullptr);
    _menuButton->setObjectName(QStringLiteral("paletteMenuButton"));
    _menuButton->setIcon(moreIcon());
    _menuButton->setToolTip(tr("Commands for lists and colours"));
    _menuButton->setAccessibleName(tr("Commands for lists and colours"));
    _menuButton->setPopupMode(QToolButton::InstantPopup);
    _menuButton->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    _menuButton->setMenu(_menu);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(scaled(10), scaled(4), scaled(10), scaled(2));
    rows->setSpacing(scaled(4));
    auto* head = new QHBoxLayout;
    head->setSpacing(scaled(2));
    head->addWidget(_lists, 1);
    head->addWidget(_menuButton);
    rows->addLayout(head);
    rows->addWidget(_ownership);
    rows->addWidget(_filter);
    rows->addWidget(_view, 1);
    rows->addWidget(_remark);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(0);
    for (QAction* action : {_add, _remove, _recolor, _undo, _redo}) {
        QToolButton* button = newButton(action);
        _buttons.push_back(button);
        foot->addWidget(button);
    }
    foot->addWidget(_count, 1);
    rows->addLayout(foot);

    for (QWidget* widget : findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus) widget->installEventFilter(this);
    }
    setTabOrder(_lists, _menuButton);
    setTabOrder(_menuButton, _filter);
    setTabOrder(_filter, _view);
    QWidget* last = _view;
    for (QToolButton* button : _buttons) {
        setTabOrder(last, button);
        last = button;
    }
}

void PalettesWidget::showLists()
{
    const QSignalBlocker blocker(_lists);
    const int place = std::max(_lists->currentIndex(), 0);
    _lists->clear();
    const auto add = [this](const EditablePalette& palette) {
        const QIcon icon = palette.isOwn() ? QIcon() : lockIcon();
        _lists->addItem(icon, shownName(palette), QVariant::fromValue(palette.id));
        if (!palette.isOwn()) {
            _lists->setItemData(
                _lists->count() - 1,
                tr("Belongs to %1, and is only read").arg(qStringFrom(palette.program)),
                Qt::ToolTipRole);
        }
    };
    // The user's own first, for those are what can be edited.
    for (const bool own : {true, false}) {
        if (!own && _lists->count() > 0) _lists->insertSeparator(_lists->count());
        for (const EditablePalette& palette : _editor.palettes()) {
            if (palette.isOwn() == own) add(palette);
        }
    }
    if (_lists->count() > 0 && _lists->itemData(_lists->count() - 1).isNull()) {
        _lists->removeItem(_lists->count() - 1);
    }
    if (_editor.palette(_list) == nullptr) {
        // The neighbour of one that has gone; a separator, which has no list, stands behind one.
        const int next = std::min(place, _lists->count() - 1);
        _list = _lists->itemData(next).toULongLong();
        if (_list == 0) _list = _lists->itemData(next - 1).toULongLong();
    }
    _lists->setCurrentIndex(_lists->findData(QVariant::fromValue(_list)));
    _lists->setEnabled(_lists->count() > 0);
}

void PalettesWidget::showEntries()
{
    _model->setEntries(entries());
}

void PalettesWidget::showCurrentList()
{
    showLists();
    showEntries();
    const EditablePalette* palette = _editor.palette(_list);
    const bool isForeign = palette != nullptr && !palette->isOwn();
    _ownership->setVisible(isForeign);
    if (isForeign) {
        _ownership->setText(tr("From %1, read-only. Your first change makes a list of your own.")
                                .arg(qStringFrom(palette->program)));
    }
    if (_watcher) watchFolders();
    updateCommands();
}

void PalettesWidget::updateCommands()
{
    const EditablePalette* palette = _editor.palette(_list);
    const bool hasSelection = _view->selectionModel()->hasSelection();
    for (const auto& [action, needs] : _commands) {
        bool makesSense = true;
        switch (needs) {
            case Needs::nothing:
                break;
            case Needs::list:
                makesSense = palette != nullptr;
                break;
            case Needs::ownList:
                makesSense = palette != nullptr && palette->isOwn();
                break;
            case Needs::selection:
                makesSense = palette != nullptr && hasSelection;
                break;
            case Needs::undo:
                makesSense = _editor.canUndo();
                break;
            case Needs::redo:
                makesSense = _editor.canRedo();
                break;
        }
        action->setEnabled(makesSense);
    }
    const int shown = _model->rowCount();
    const auto all = static_cast<qlonglong>(_model->entries().size());
    const QString allText = locale().toString(all);
    _count->setText(shown == all ? allText : tr("%1 of %2").arg(locale().toString(shown), allText));
    _count->setToolTip(tr("Colours in the list"));
    _count->setAccessibleName(tr("Colours in the list: %1").arg(_count->text()));
    QString note;
    if (palette == nullptr) {
        note = tr("There is no list yet. Make one, or drop a palette file here.");
    } else if (all == 0) {
        note = tr("The list is empty. The + adds the panel's colour.");
    } else if (shown == 0) {
        note = tr("No colour has this in its name or hex code.");
    }
    _emptyNote->setText(note);
    _emptyNote->setVisible(!note.isEmpty());
    _emptyNote->setGeometry(_view->viewport()->rect().adjusted(scaled(8), 0, -scaled(8), 0));
}

void PalettesWidget::showRemark(const QString& text, RemarkKind kind)
{
    _remark->setText(text);
    _remark->setAccessibleName(text);
    _remark->setVisible(!text.isEmpty());
    _remarkTimer.stop();
    if (text.isEmpty()) return;
    QPalette colors = palette();
    const QColor ground = colors.color(QPalette::Window);
    colors.setColor(QPalette::Window, kind == RemarkKind::failure
                                          ? mixed(ground, QColor(220, 50, 30), 0.25)
                                          : mixed(ground, colors.color(QPalette::Highlight), 0.15));
    _remark->setPalette(colors);
    // What went wrong stays until something else is done.
    if (kind == RemarkKind::news) _remarkTimer.start(remarkTime);
    QAccessibleEvent event(_remark, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void PalettesWidget::setColor(const HostColor& color)
{
    _color = color;
    const QString hex = qStringFrom(hexCodeOf(color));
    _add->setToolTip(tr("Add %1 to the list (%2)")
                         .arg(hex, _add->shortcut().toString(QKeySequence::NativeText)));
    _recolor->setToolTip(tr("Give the selected colours the panel's colour, %1").arg(hex));
}

void PalettesWidget::setWatching(bool flag)
{
    if (!flag) {
        _watcher.reset();
        _lookTimer.stop();
        return;
    }
    _watcher = std::make_unique<QFileSystemWatcher>();
    const auto react = [this] {
        // Not started again while it runs: a folder that never rests would hide every change.
        if (!_lookTimer.isActive()) _lookTimer.start(settlingTime);
    };
    connect(_watcher.get(), &QFileSystemWatcher::directoryChanged, this, react);
    connect(_watcher.get(), &QFileSystemWatcher::fileChanged, this, react);
    lookAtDisk();
}

void PalettesWidget::watchFolders()
{
    QStringList wanted;
    const auto add = [&wanted](const std::string& path) {
        const QString name = QFile::decodeName(path.c_str());
        if (!path.empty() && !wanted.contains(name)) wanted.append(name);
    };
    bool isOwn = true;
    for (const std::string& path : _store.folders()) {
        // Our own folder may be made at any time; one of another program comes with a start of it.
        if (isOwn || _files.kindAtPath(path) == HostFileKind::folder) {
            add(nearestFolder(_files, path));
        }
        isOwn = false;
    }
    // A folder does not tell of a file that is written in its place.
    const EditablePalette* palette = _editor.palette(_list);
    if (palette != nullptr) add(palette->path);
    QStringList gone;
    for (const QString& path : _watcher->directories() + _watcher->files()) {
        if (!wanted.contains(path)) gone.append(path);
        wanted.removeAll(path);
    }
    if (!gone.isEmpty()) _watcher->removePaths(gone);
    if (!wanted.isEmpty()) _watcher->addPaths(wanted);
}

void PalettesWidget::lookAtDisk()
{
    const PaletteId shown = _list;
    const auto changed = _editor.refresh();
    const auto found = std::find_if(changed.begin(), changed.end(),
                                    [shown](const auto& palette) { return palette.id == shown; });
    const auto selected = _view->selectedPlaces();
    QStringList names;
    for (const std::size_t place : selected)
        names.append(qStringFrom(_model->entries()[place].name()));
    const bool isEditing = _listName->isVisible();
    const QString typed = _listName->text();
    showCurrentList();
    if (isEditing) _listName->setText(typed);
    if (found == changed.end()) return;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < _model->entries().size() && !names.isEmpty(); ++i) {
        if (names.contains(qStringFrom(_model->entries()[i].name()))) places.push_back(i);
    }
    _view->selectPlaces(places);
    const QString name = qStringFrom(found->name);
    showRemark(_editor.palette(shown) == nullptr
                   ? tr("\"%1\" has been removed by another program.").arg(name)
                   : tr("\"%1\" has been changed by another program.").arg(name),
               RemarkKind::news);
}

void PalettesWidget::beginListRename()
{
    _listName->setGeometry(_lists->rect());
    _listName->setText(nameOfList());
    _listName->show();
    _listName->setFocus();
    _listName->selectAll();
}

void PalettesWidget::endListRename(bool takes)
{
    if (!_listName->isVisible()) return;
    // Hiding it takes the focus away, which ends the edit once more.
    const QSignalBlocker blocker(_listName);
    const bool hadFocus = _listName->hasFocus();
    _listName->hide();
    if (hadFocus) _lists->setFocus();
    const QString name = _listName->text();
    if (takes && name != nameOfList()) take(_editor.rename(_list, u16From(name)));
}

}  // namespace vantorel
