#include "panel/window/PanelWindow.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/TextScale.h"
#include "panel/pages/DialogPage.h"
#include "panel/pages/PluginPage.h"
#include "panel/palettes/PalettesPage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

// In points, like the sizes of pages.
constexpr int topBarPoints = 32;
constexpr int toolsPoints = 54;
constexpr int problemsPoints = 20;
constexpr int footPoints = 42;
constexpr QSize firstPageSize{260, 340};

/// Sorts widgets by rows from the top, and in each row in the direction of reading.
void sortAsRead(std::vector<QWidget*>& widgets, const QWidget& window)
{
    const auto place = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    const auto isAbove = [&](const QWidget* a, const QWidget* b) {
        return place(a).center().y() < place(b).center().y();
    };
    std::stable_sort(widgets.begin(), widgets.end(), isAbove);
    for (auto row = widgets.begin(); row != widgets.end();) {
        const auto end = std::find_if(row, widgets.end(), [&](const QWidget* widget) {
            return place(widget).center().y() > place(*row).bottom();
        });
        std::stable_sort(row, end, [&](const QWidget* a, const QWidget* b) {
            const int ahead = place(a).left() - place(b).left();
            return window.isRightToLeft() ? ahead > 0 : ahead < 0;
        });
        row = end;
    }
}

QSize scaledSize(QSize points)
{
    return {scaled(points.width()), scaled(points.height())};
}

}  // namespace

PanelWindow::PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                         std::vector<Message>& problems, std::unique_ptr<ScreenPicker> screenPicker)
    : _topBar(new PanelTopBar(this)),
      _problems(new PlainLabel(this)),
      _pages(*this),
      _message(new MessageLabel(this)),
      _tools(new PanelTools(this)),
      _host(desktop, *this, _colors, _pages),
      _exchange(_colors, _pages, *this, std::move(screenPicker)),
      _commands(*this, _colors, _pages, _exchange)
{
    setWindowTitle(QStringLiteral("Vantorel"));
    setAccessibleRole(*this, QAccessible::Window);
    _problems->setVisible(false);
    _problems->setFont(fontOfSize(10));
    _problems->setMargin(4);
    _topBar->setMenu(_commands.menu());
    _tools->setActions(_commands.swap(), _commands.pick(), _commands.copy(), _commands.copyMenu());
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
    connect(&_colors, &PanelColors::colorSet, _tools, &PanelTools::setColor);
    connect(&_colors, &PanelColors::colorSet, &_pages, &PanelPages::setColor);
    connect(&_colors, &PanelColors::backgroundChanged, _tools, &PanelTools::setBackground);
    connect(&_colors, &PanelColors::historyChanged, this, &PanelWindow::showHistory);
    connect(_tools, &PanelTools::opacityChosen, &_colors, &PanelColors::setOpacity);
    connect(_tools, &PanelTools::recentColorChosen, &_colors, &PanelColors::setColor);
    connect(_tools, &PanelTools::colorDropped, &_exchange, &ColorExchange::takeColor);
    connect(_tools, &PanelTools::backgroundDropped, &_exchange, &ColorExchange::takeBackground);
    connect(&_exchange, &ColorExchange::reported, this, &PanelWindow::showMessage);
    connect(&_exchange, &ColorExchange::copied, this, [this](const QString& text) {
        _message->showMessage({}, {});
        _topBar->showMessage(translatedSentence({phrase("\"%1\" copied", text.toStdString())}));
    });
    // What has failed before has succeeded now.
    connect(&_colors, &PanelColors::colorSet, this, [this] { _message->showMessage({}, {}); });
    connect(_message, &MessageLabel::messageChanged, this, &PanelWindow::makeRoomForMessage);
    connect(_topBar, &PanelTopBar::pageChosen, &_pages, &PanelPages::showPage);
    connect(&_pages, &PanelPages::pageShown, this, &PanelWindow::adaptToPage);
    // A page looks its lists up again when it gets a colour.
    _host.desktop().colorLists().setReaction([this] { _pages.setColor(_colors.color()); });
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
    addPage(std::make_unique<PalettesPage>(desktop.files(), desktop.paletteFiles()));
}

void PanelWindow::addPage(std::unique_ptr<PanelPage> page)
{
    _topBar->addPage(page->icon(), page->name(), page->toolTip());
    connect(page.get(), &PanelPage::colorChosen, &_colors, &PanelColors::setColor);
    _pages.add(std::move(page));
}

void PanelWindow::adaptToPage(int index)
{
    const PanelPage& page = _pages.page(index);
    showMessage({});
    _topBar->showPage(index, page.name());
    _host.pageDidAppear();
    const QSize least = scaledSize(page.minimumSize() + barsPoints());
    growTo(least);
}

void PanelWindow::growTo(QSize least)
{
    // If the user has resized the window since, that is the size to keep.
    const bool isStillGrown = _growth && size() == _growth->to;
    const QSize own = isStillGrown ? _growth->from : size();
    const QSize wanted = own.expandedTo(least);
    _growth.reset();
    setMinimumSize(least);
    resizeAtOnce(wanted);
    if (wanted != own) _growth = {own, wanted};
}

bool PanelWindow::focusNextPrevChild(bool next)
{
    // At each step, because pages move their controls and swap their faces.
    orderTabs();
    return QWidget::focusNextPrevChild(next);
}

/// Orders Tab as one reads: the bar, the page, the tools below. By default it follows the order of
/// creation, and pages are created when they are first shown. The controls of a picker's page are
/// ordered by their places.
void PanelWindow::orderTabs()
{
    std::vector<const QWidget*> groups{_topBar, &_pages.place(), _tools};
    if (_foot != nullptr) groups.push_back(_foot);
    std::vector<std::vector<QWidget*>> members(groups.size());
    for (QWidget* widget = nextInFocusChain(); widget != this;
         widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
        for (std::size_t i = 0; i < groups.size(); ++i) {
            if (groups[i]->isAncestorOf(widget)) members[i].push_back(widget);
        }
    }
    // The menu button was created before those of the pages.
    std::stable_partition(members[0].begin(), members[0].end(), [](const QWidget* widget) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        return button != nullptr && button->isCheckable();
    });
    if (const PanelPage* page = _pages.current(); page != nullptr && page->view() != nullptr) {
        sortAsRead(members[1], *this);
    }
    QWidget* last = nullptr;
    for (const auto& group : members) {
        for (QWidget* widget : group) {
            if (last != nullptr) setTabOrder(last, widget);
            last = widget;
        }
    }
}

void PanelWindow::showHistory()
{
    _tools->setRecentColors(_colors.recent());
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
    const QString sentence = translatedSentence(message);
    const bool isShort = kind == MessageLabel::Kind::news && _topBar->hasRoomFor(sentence);
    _topBar->showMessage(isShort ? sentence : QString());
    _message->showMessage(isShort ? Message() : message, kind);
}

/// The page gives up the room; a page that already has its minimum height makes the window higher.
void PanelWindow::makeRoomForMessage()
{
    const int wanted = _message->isVisibleTo(this) ? _message->heightForWidth(width()) : 0;
    setMinimumHeight(minimumHeight() - _messageHeight + wanted);
    _messageHeight = wanted;
    resizeAtOnce(size().expandedTo(minimumSize()));
}

void PanelWindow::setFoot(QWidget& foot)
{
    _foot = &foot;
    setMinimumHeight(minimumHeight() + scaled(footPoints));
    resizeAtOnce({width(), height() + scaled(footPoints)});
}

/// Searching the icon theme takes an eighth of the start-up time, so it is done after the first
/// paint.
void PanelWindow::loadIcon()
{
    const QIcon standIn = _pages.page(0).icon();
    setWindowIcon(QIcon::fromTheme(QStringLiteral("org.vantorel.ColorPanel"), standIn));
}

void PanelWindow::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (!std::exchange(_isPainted, true)) QTimer::singleShot(0, this, &PanelWindow::loadIcon);
}

QSize PanelWindow::barsPoints() const
{
    return {0, topBarPoints + toolsPoints + (_foot != nullptr ? footPoints : 0)};
}

void PanelWindow::resizeToPage(QSize points)
{
    resizeAtOnce(scaledSize(points + barsPoints()));
}

void PanelWindow::resizeAtOnce(QSize size)
{
    resize(size);
    layOut();
}

void PanelWindow::layOut()
{
    const int topBarHeight = scaled(topBarPoints);
    const int toolsHeight = scaled(toolsPoints);
    const int problems = _problems->isVisibleTo(this) ? scaled(problemsPoints) : 0;
    const int foot = _foot != nullptr ? scaled(footPoints) : 0;
    const int message = _message->isVisibleTo(this) ? _message->heightForWidth(width()) : 0;
    const int pageHeight =
        std::max(0, height() - topBarHeight - message - toolsHeight - foot - problems);
    const int toolsTop = topBarHeight + pageHeight + message;
    _topBar->setGeometry(0, 0, width(), topBarHeight);
    _message->setGeometry(0, topBarHeight + pageHeight, width(), message);
    _tools->setGeometry(0, toolsTop, width(), toolsHeight);
    if (_foot != nullptr) _foot->setGeometry(0, toolsTop + toolsHeight, width(), foot);
    _problems->setGeometry(0, height() - problems, width(), problems);
    _pages.setGeometry({0, topBarHeight, width(), pageHeight});
}

void PanelWindow::keyPressEvent(QKeyEvent* event)
{
    PanelPage* page = _pages.current();
    if (page == nullptr || !page->performKey(*event)) QWidget::keyPressEvent(event);
}

void PanelWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void PanelWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    // This also ends loops that wait for the mouse.
    QApplication::quit();
}

void PanelWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    _pages.setVisible(!isMinimized());
}

void PanelWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    _pages.setVisible(false);
}

void PanelWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // A window that is minimised is not hidden.
    if (event->type() == QEvent::WindowStateChange)
        _pages.setVisible(isVisible() && !isMinimized());
}

void PanelWindow::recall(const PanelMemory& memory)
{
    if (!memory.geometry.isEmpty()) restoreGeometry(memory.geometry);
    _pages.showRemembered(memory.page);
    _colors.setBackground(memory.background);
    _colors.startWith(memory.color, memory.recent);
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
    memory.onTop = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    memory.color = _colors.color();
    memory.background = _colors.background();
    memory.recent = _colors.recent();
    return memory;
}

}  // namespace vantorel
