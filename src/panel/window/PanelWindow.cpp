#include "panel/window/PanelWindow.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/pages/DialogPage.h"
#include "panel/pages/PluginPage.h"
#include "panel/palettes/PalettesPage.h"
#include "panel/window/TabOrder.h"

#include <QApplication>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

// In points, like the sizes of pages.
constexpr int problemsPoints = 20;
constexpr int footPoints = 42;
constexpr int pickIconPoints = 16;
/// The window is 300 points wide then.
constexpr QSize firstPageSize{296, 292};

QSize scaledSize(QSize points)
{
    return {scaled(points.width()), scaled(points.height())};
}

}  // namespace

PanelWindow::PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                         std::vector<Message>& problems, std::unique_ptr<ScreenPicker> screenPicker)
    : _band(new ColorBand(this)),
      _field(new ColorField(this)),
      _pick(new QtToolButton(this)),
      _facts(new ColorFacts(this)),
      _message(new MessageLabel(this)),
      _forms(new FormList(this)),
      _pageBar(new PageBar(this)),
      _pages(*this),
      _lastColors(new LastColors(this)),
      _problems(new PlainLabel(this)),
      _host(desktop, *this, _colors, _pages),
      _exchange(_colors, _pages, *this, std::move(screenPicker)),
      _commands(*this, _colors, _pages, _exchange),
      _entry(*_field, *_facts, *_forms, _colors, _pages, _exchange)
{
    setWindowTitle(QStringLiteral("Vantorel"));
    setAccessibleRole(*this, QAccessible::Window);
    _problems->setVisible(false);
    _problems->setFont(fontOfSize(10));
    _problems->setMargin(4);
    _pick->setObjectName(QStringLiteral("pick"));
    _pick->setAutoRaise(false);
    _pick->setIconSize(QSize(scaled(pickIconPoints), scaled(pickIconPoints)));
    _pick->setDefaultAction(&_commands.pick());
    _pick->setAccessibleName(_commands.pick().text());
    _field->setCopyActions(_commands.copy(), _commands.copyMenu());
    _band->setSwapAction(_commands.swap());
    _lastColors->setObjectName(QStringLiteral("lastColors"));
    _lastColors->setEmptyHint(
        tr("%1 picks from the screen").arg(shownKeys(_commands.pick().shortcuts())));
    _pageBar->setMenu(_commands.menu());
    connectParts();

    addPages(plugins, problems);
    resizeToPage(firstPageSize);
    _pages.showPage(0);
    // No control has the focus initially, so that Ctrl+C copies the colour.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
}

PanelWindow::~PanelWindow()
{
    _host.desktop().colorLists().setReaction({});
    // Pickers may use the host until they are destroyed.
    _pages.clear();
}

void PanelWindow::connectParts()
{
    const auto showColors = [this] {
        _band->setColor(_colors.foreground());
        _band->setBackground(_colors.background());
        _band->setEdited(_colors.edited());
    };
    const auto showHistory = [this] { _lastColors->setColors(_colors.pinned(), _colors.recent()); };
    connect(&_colors, &PanelColors::colorsChanged, this, showColors);
    connect(&_colors, &PanelColors::colorSet, &_pages, &PanelPages::setColor);
    connect(&_colors, &PanelColors::historyChanged, this, showHistory);
    connect(_band, &ColorBand::editRequested, &_colors, &PanelColors::edit);
    connect(_band, &ColorBand::dropped, &_exchange, &ColorExchange::takeOneColor);
    connect(_band, &ColorBand::copyRequested, this, [this](EditedColor which) {
        _colors.edit(which);
        _exchange.copy();
    });
    connect(_lastColors, &LastColors::chosen, &_colors, &PanelColors::setColor);
    connect(_lastColors, &LastColors::pinRequested, &_colors, &PanelColors::pin);
    connect(_lastColors, &LastColors::pinnedReordered, &_colors, &PanelColors::setPinned);
    connect(_lastColors, &LastColors::clearRequested, &_colors, &PanelColors::clearRecent);
    connect(&_exchange, &ColorExchange::reported, this, &PanelWindow::showMessage);
    connect(&_exchange, &ColorExchange::copied, this, [this](const QString& text) {
        showMessage({phrase("\"%1\" copied", text.toStdString())});
    });
    // What has failed before has succeeded now.
    connect(&_colors, &PanelColors::colorSet, this, [this] { showMessage({}); });
    connect(&_entry, &ColorEntry::mended, this, [this] { showMessage({}); });
    connect(_message, &MessageLabel::messageChanged, this, &PanelWindow::adaptToMessage);
    connect(_pageBar, &PageBar::pageChosen, &_pages, &PanelPages::showPage);
    connect(&_pages, &PanelPages::pageShown, this, &PanelWindow::adaptToPage);
    // A page looks its lists up again when it gets a colour.
    _host.desktop().colorLists().setReaction([this] { _pages.setColor(_colors.color()); });
    showColors();
    showHistory();
    _pages.setColor(_colors.color());
}

void PanelWindow::addPages(const std::vector<LoadedPlugin>& plugins, std::vector<Message>& problems)
{
    for (const LoadedPlugin& plugin : plugins) {
        auto picker = plugin.makePicker(_host);
        if (picker) {
            addPage(std::make_unique<PluginPage>(plugin, *std::move(picker)));
        } else {
            problems.push_back(leftOut(plugin.file(), picker.error()));
        }
    }
    addPage(std::make_unique<DialogPage>());
    QtDesktop& desktop = _host.desktop();
    auto palettes = std::make_unique<PalettesPage>(desktop.files(), desktop.paletteFiles());
    connect(_lastColors, &LastColors::keepAsListRequested, palettes.get(),
            [this, page = palettes.get()] {
                _pages.showPageWithKey(page->key());
                std::vector<HostColor> colors = _colors.pinned();
                colors.insert(colors.end(), _colors.recent().begin(), _colors.recent().end());
                page->keepAsList(tr("Last colours"), colors);
            });
    addPage(std::move(palettes));
}

void PanelWindow::addPage(std::unique_ptr<PanelPage> page)
{
    _pageBar->addPage(page->icon(), page->name(), page->toolTip());
    connect(page.get(), &PanelPage::colorChosen, &_colors, &PanelColors::setColor);
    _pages.add(std::move(page));
}

void PanelWindow::adaptToPage(int index)
{
    showMessage({});
    _pageBar->showPage(index);
    _host.pageDidAppear();
    resizeAtOnce(_growth.sizeFor(size(), leastWindow(roomIn(size()))));
}

bool PanelWindow::focusNextPrevChild(bool next)
{
    // At each step, because pages move their controls and swap their faces.
    std::vector<const QWidget*> groups{_band,  _field,   _pick,           _facts,
                                       _forms, _pageBar, &_pages.place(), _lastColors};
    if (_foot != nullptr) groups.push_back(_foot);
    orderTabs(*this, groups);
    return QWidget::focusNextPrevChild(next);
}

void PanelWindow::showProblems(const std::vector<Message>& problems)
{
    QStringList lines;
    for (const Message& problem : problems)
        lines.append(translated(problem));
    _problems->setVisible(!lines.isEmpty());
    const QString reasons = lines.join(u'\n');
    _problems->setToolTip(plainToolTip(reasons));
    _problems->setAccessibleDescription(reasons);
    _problems->setText(lines.size() == 1 ? tr("A plug-in was left out")
                                         : tr("%1 plug-ins were left out").arg(lines.size()));
    layOut();
}

void PanelWindow::showMessage(const Message& message, MessageLabel::Kind kind)
{
    _message->showMessage(message, kind);
}

/// The page gives up the room for a long message; a page that already has its least height makes
/// the window higher.
void PanelWindow::adaptToMessage()
{
    resizeAtOnce(size());
}

void PanelWindow::setFoot(QWidget& foot)
{
    _foot = &foot;
    resizeAtOnce({width(), height() + scaled(footPoints)});
}

/// Searching the icon theme takes an eighth of the start-up time, so it is done after the first
/// paint.
void PanelWindow::loadIcon()
{
    const QIcon standIn = _pages.page(0).icon();
    setWindowIcon(QIcon::fromTheme(QStringLiteral("org.vantorel.ColorPanel"), standIn));
}

void PanelWindow::resizeToPage(QSize points)
{
    resizeAtOnce(windowForPage(roomIn(size()), scaledSize(points)));
}

void PanelWindow::growPage(QSize growth)
{
    resizeAtOnce(windowForPage(roomIn(size()), _pages.place().size() + growth));
}

void PanelWindow::resizeAtOnce(QSize size)
{
    // The least height depends on the number of columns, and so on the new width.
    const QSize least = leastWindow(roomIn(size));
    setMinimumSize(least);
    resize(size.expandedTo(least));
    layOut();
}

PanelRoom PanelWindow::roomIn(QSize window) const
{
    PanelRoom room;
    room.window = window;
    if (const PanelPage* page = _pages.current()) room.leastPage = scaledSize(page->minimumSize());
    if (_message->isVisibleTo(this)) {
        const int width = panelPlaces(room).lines.width();
        room.message = _message->heightForWidth(width);
    }
    if (_foot != nullptr) room.foot = scaled(footPoints);
    if (_problems->isVisibleTo(this)) room.problems = scaled(problemsPoints);
    return room;
}

void PanelWindow::layOut()
{
    const PanelRoom room = roomIn(size());
    setMinimumSize(leastWindow(room));
    const PanelPlaces places = panelPlaces(room);
    const auto mirrored = [this](const QRect& place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    const auto put = [&](QWidget& widget, const QRect& place) {
        widget.setGeometry(mirrored(place));
        widget.setVisible(!place.isEmpty());
    };
    const bool hasMessage = _message->isVisibleTo(this);
    put(*_band, places.band);
    put(*_field, places.field);
    put(*_pick, places.pick);
    // The slider needs a little more than its line.
    const QRect lines = places.lines.adjusted(0, 0, 0, scaled(2));
    put(*_facts, hasMessage ? QRect() : lines);
    if (hasMessage) _message->setGeometry(mirrored(places.lines));
    put(*_forms, places.forms);
    put(*_pageBar, places.pages.adjusted(-PageBar::bleed(), 0, PageBar::bleed(), 0));
    put(*_lastColors, places.lastColors);
    if (_foot != nullptr) put(*_foot, places.foot);
    if (!places.problems.isEmpty()) _problems->setGeometry(places.problems);
    _pages.setGeometry(mirrored(places.page));
}

void PanelWindow::keyPressEvent(QKeyEvent* event)
{
    PanelPage* page = _pages.current();
    if (page == nullptr || !page->performKey(*event)) QWidget::keyPressEvent(event);
}

bool PanelWindow::event(QEvent* event)
{
    const bool isDone = QWidget::event(event);
    switch (event->type()) {
        case QEvent::Resize:
        case QEvent::LayoutDirectionChange:
            layOut();
            break;
        case QEvent::Paint:
            if (!std::exchange(_isPainted, true))
                QTimer::singleShot(0, this, &PanelWindow::loadIcon);
            break;
        case QEvent::Close:
            // This also ends loops that wait for the mouse.
            QApplication::quit();
            break;
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::WindowStateChange:
            // A window that is minimised is not hidden.
            _pages.setVisible(isVisible() && !isMinimized());
            break;
        default:
            break;
    }
    return isDone;
}

bool PanelWindow::finishEditing()
{
    _pages.current()->finishEditing();
    _field->finishEditing();
    return !_field->hasError();
}

void PanelWindow::recall(const PanelMemory& memory)
{
    if (!memory.geometry.isEmpty()) restoreGeometry(memory.geometry);
    _pages.showRemembered(memory.page);
    _exchange.setForm(memory.form);
    _colors.startWith({memory.color, memory.background}, memory.recent, memory.pinned);
    _commands.stayOnTop().setChecked(memory.onTop);
    layOut();
}

PanelMemory PanelWindow::memory(Place place) const
{
    PanelMemory memory;
    // A window that was never shown has no place of its own.
    if (place == Place::included && testAttribute(Qt::WA_WState_Created))
        memory.geometry = saveGeometry();
    if (const PanelPage* page = _pages.current()) memory.page = page->identifier();
    memory.form = _exchange.form();
    memory.onTop = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    memory.color = _colors.foreground();
    memory.background = _colors.background();
    memory.recent = _colors.recent();
    memory.pinned = _colors.pinned();
    return memory;
}

}  // namespace vantorel
