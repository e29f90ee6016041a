#include "panel/window/PanelWindow.h"

#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/palettes/PalettesPage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// In points, as the pages are.
constexpr int topBarPoints = 32;
constexpr int toolsPoints = 54;
constexpr int problemsPoints = 20;
constexpr int choicePoints = 42;
constexpr QSize firstPageSize{260, 340};

QSize scaledSize(QSize points)
{
    return {scaled(points.width()), scaled(points.height())};
}

}  // namespace

PanelWindow::PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                         std::vector<std::string>& problems)
    : QtColorPanel(desktop), _topBar(new PanelTopBar(this)), _problems(new QLabel(this))
{
    setWindowTitle(tr("Colour"));
    setAccessibleRole(*this, QAccessible::Window);
    _clock.start();
    auto* place = new QWidget(this);
    _holder = std::make_unique<QtMirrored<HostView>>(HostRect{}, place);
    place->setVisible(true);
    makeTools();
    _problems->setVisible(false);
    _problems->setFont(fontOfSize(10));
    _problems->setMargin(4);
    _problems->setTextFormat(Qt::PlainText);
    makeCommands();

    addPages(plugins, problems);
    resizeToPage(firstPageSize);
    showPage(0);
    _tools->setColor(_color);
    _tools->setBackground(_background);
    showHistory();
    // At the start no control has the focus: Ctrl+C copies the colour at once.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
}

PanelWindow::~PanelWindow()
{
    _screenPicker.reset();
    // The pages' views stand in the holder, whose widget belongs to the window.
    _pages.clear();
    _holder.reset();
}

void PanelWindow::makeTools()
{
    _tools = new PanelTools(this);
    _tools->setOpacityChoice(
        [this](int percent) { chooseColor(_color.colorWithAlphaComponent(percent / 100.0)); });
    _tools->recentColors().setChoice([this](const HostColor& color) { chooseColor(color); });
    _tools->well().setDropReaction([this](const ColorOffer& offer) {
        takeOffer(offer, [this](const HostColor& color) { chooseColor(color); });
    });
    _tools->backgroundWell().setDropReaction([this](const ColorOffer& offer) {
        takeOffer(offer, [this](const HostColor& color) { setBackground(color); });
    });
    setAccessibleRole(_tools->well(), QAccessible::Graphic);
    setAccessibleRole(_tools->backgroundWell(), QAccessible::Graphic);
    setAccessibleRole(_tools->recentColors(), QAccessible::ColorChooser);
}

void PanelWindow::addPages(const std::vector<LoadedPlugin>& plugins,
                           std::vector<std::string>& problems)
{
    _topBar->setPageChoice([this](int index) { showPage(index); });
    for (const LoadedPlugin& plugin : plugins) {
        std::string reason;
        auto picker = plugin.makePicker(*this, reason);
        if (picker) {
            addPage(std::make_unique<PluginPage>(plugin, std::move(picker)));
        } else {
            problems.push_back(plugin.file() + " is left out: " + reason);
        }
    }
    addPage(std::make_unique<DialogPage>(
        [this](const QColor& chosen) { chooseColor(hostColorFrom(chosen)); }));
    // An entry tells no opacity, so the panel's stays.
    addPage(std::make_unique<PalettesPage>(
        QtColorPanel::desktop().files(), QtColorPanel::desktop().colorLists(),
        [this](const HostColor& chosen) {
            chooseColor(chosen.colorWithAlphaComponent(_color.alphaComponent()));
        }));
}

void PanelWindow::addPage(std::unique_ptr<PanelPage> page)
{
    _topBar->addPage(page->icon(), page->name(), page->toolTip());
    _pages.push_back(std::move(page));
}

PanelPage* PanelWindow::currentPage() const
{
    return _currentPage >= 0 ? _pages[static_cast<std::size_t>(_currentPage)].get() : nullptr;
}

HostColorPicker* PanelWindow::currentPicker() const
{
    const PanelPage* page = currentPage();
    return page != nullptr ? page->picker() : nullptr;
}

HostView* PanelWindow::pageView() const
{
    const PanelPage* page = currentPage();
    return page != nullptr ? page->view() : nullptr;
}

void PanelWindow::showPage(int index)
{
    if (index < 0 || index >= pageCount() || index == _currentPage) return;
    if (PanelPage* old = currentPage()) old->hide();
    _currentPage = index;
    PanelPage& page = *_pages[static_cast<std::size_t>(index)];
    _topBar->showPage(index, page.name());
    page.show(*_holder);
    pageDidAppear();
    page.setColor(_color);
    const QSize least = scaledSize(page.minimumSize() + barsPoints());
    setMinimumSize(least);
    resize(size().expandedTo(least));
    layOut();
    orderTabs();
}

/// Tab goes as one reads: the bar above, the page, what is below. By itself it would go in the
/// order in which things were made, and pages are made when they are shown first.
void PanelWindow::orderTabs()
{
    std::vector<const QWidget*> groups{_topBar, _holder->widget(), _tools};
    if (_choiceBar != nullptr) groups.push_back(_choiceBar);
    std::vector<std::vector<QWidget*>> members(groups.size());
    for (QWidget* widget = nextInFocusChain(); widget != this;
         widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
        for (std::size_t i = 0; i < groups.size(); ++i) {
            if (groups[i]->isAncestorOf(widget)) members[i].push_back(widget);
        }
    }
    // The menu's button was made before those of the pages.
    std::stable_partition(members[0].begin(), members[0].end(), [](const QWidget* widget) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        return button != nullptr && button->isCheckable();
    });
    QWidget* last = nullptr;
    for (const auto& group : members) {
        for (QWidget* widget : group) {
            if (last != nullptr) setTabOrder(last, widget);
            last = widget;
        }
    }
}

bool PanelWindow::showPageWithKey(const QString& key)
{
    for (int i = 0; i < pageCount(); ++i) {
        if (_pages[static_cast<std::size_t>(i)]->key() != key) continue;
        showPage(i);
        return true;
    }
    return false;
}

QStringList PanelWindow::pageKeys() const
{
    QStringList keys;
    for (const auto& page : _pages)
        keys.append(page->key());
    return keys;
}

void PanelWindow::setColor(const std::optional<HostColor>& color)
{
    if (color) chooseColor(*color);
}

QColor PanelWindow::chosenColor() const
{
    return qColorFrom(_color);
}

void PanelWindow::chooseColor(const HostColor& color)
{
    const bool changed = color != _color;
    _color = color;
    _tools->setColor(color);
    if (changed) {
        _history.record(color, static_cast<double>(_clock.elapsed()) / 1000);
        showHistory();
    }
    if (PanelPage* page = currentPage()) page->setColor(color);
    if (!changed) return;
    for (const ColorObserver& observer : _colorObservers)
        observer(color);
}

void PanelWindow::setBackground(const HostColor& color)
{
    _background = color;
    _tools->setBackground(color);
}

void PanelWindow::dragImage(const HostImage& image, const HostPasteboardItem& item,
                            const HostEvent& event, HostView& source)
{
    // The panel is black while a text is dragged, which is nothing to undo.
    if (std::holds_alternative<std::string>(item)) _history.forgetLast();
    QtColorPanel::dragImage(image, item, event, source);
}

void PanelWindow::showProblems(const std::vector<std::string>& problems)
{
    QStringList lines;
    for (const std::string& problem : problems)
        lines.append(QString::fromStdString(problem));
    _problems->setVisible(!lines.isEmpty());
    _problems->setToolTip(lines.join(u'\n'));
    _problems->setText(lines.size() == 1 ? tr("A plug-in was left out")
                                         : tr("%1 plug-ins were left out").arg(lines.size()));
    layOut();
}

/// To look for it among the icons of the theme takes an eighth of the start, so it comes behind the
/// first picture of the window.
void PanelWindow::loadIcon()
{
    const QIcon standIn = _pages.empty() ? QIcon() : _pages.front()->icon();
    setWindowIcon(QIcon::fromTheme(QStringLiteral("org.vantorel.ColorPanel"), standIn));
}

void PanelWindow::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (!std::exchange(_isPainted, true)) QTimer::singleShot(0, this, &PanelWindow::loadIcon);
}

void PanelWindow::showRemark(const QString& remark)
{
    _topBar->showRemark(remark);
}

void PanelWindow::resizeToPage(QSize points)
{
    resize(scaledSize(points + barsPoints()));
    layOut();
}

QSize PanelWindow::barsPoints() const
{
    return {0, topBarPoints + toolsPoints + (_choiceBar != nullptr ? choicePoints : 0)};
}

HostRect PanelWindow::frame() const
{
    const QRect place = geometry();
    const QScreen* shownOn = screen();
    const int screenBottom = shownOn != nullptr ? shownOn->geometry().bottom() + 1 : 0;
    const double scale = textScale();
    return {place.x() / scale, (screenBottom - place.y() - place.height()) / scale,
            place.width() / scale, place.height() / scale};
}

void PanelWindow::setFrame(HostRect wanted, bool)
{
    const HostRect old = frame();
    const double scale = textScale();
    const QSize newSize(qRound(wanted.width * scale), qRound(wanted.height * scale));
    const QPoint moved(qRound((wanted.x - old.x) * scale),
                       qRound((old.maxY() - wanted.maxY()) * scale));
    if (!moved.isNull()) move(pos() + moved);
    resize(newSize);
    layOut();
}

void PanelWindow::layOut()
{
    const int topBarHeight = scaled(topBarPoints);
    const int toolsHeight = scaled(toolsPoints);
    const int problems = _problems->isVisibleTo(this) ? scaled(problemsPoints) : 0;
    const int choice = _choiceBar != nullptr ? scaled(choicePoints) : 0;
    const int pageHeight = std::max(0, height() - topBarHeight - toolsHeight - choice - problems);
    _topBar->setGeometry(0, 0, width(), topBarHeight);
    _tools->setGeometry(0, topBarHeight + pageHeight, width(), toolsHeight);
    if (_choiceBar != nullptr)
        _choiceBar->setGeometry(0, topBarHeight + pageHeight + toolsHeight, width(), choice);
    _problems->setGeometry(0, height() - problems, width(), problems);
    const HostRect page{0, 0, width() / textScale(), pageHeight / textScale()};
    _holder->widget()->setGeometry(0, topBarHeight, width(), pageHeight);
    if (page == _holder->frame()) return;
    _holder->setFrame(page);
    if (PanelPage* current = currentPage()) current->resize(page.size());
}

void PanelWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void PanelWindow::askForChoice()
{
    setWindowTitle(tr("Choose a colour"));
    setWindowFlags((windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
    _choiceBar = new ChoiceBar(
        this, [this] { choose(); }, [this] { close(); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* accept = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        connect(accept, &QShortcut::activated, this, [this] { choose(); });
    }
    setMinimumHeight(minimumHeight() + scaled(choicePoints));
    resize(width(), height() + scaled(choicePoints));
    layOut();
    orderTabs();
}

void PanelWindow::choose()
{
    // What was typed counts, also when it was not yet entered.
    if (currentPicker() != nullptr) {
        for (QLineEdit* field : _holder->widget()->findChildren<QLineEdit*>()) {
            if (field->isVisible() && field->isModified()) emit field->returnPressed();
        }
    }
    // The panel's own pages know no settings, and the window is about to close.
    if (currentPicker() == nullptr) showPage(0);
    _history.remember(_color);
    _choice = draggedText();
    close();
}

void PanelWindow::keyPressEvent(QKeyEvent* event)
{
    // What a control has used does not come here, except for Enter in a text field.
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (_choiceBar != nullptr && event->key() == Qt::Key_Escape) {
        close();
    } else if (_choiceBar != nullptr && enters &&
               qobject_cast<QLineEdit*>(focusWidget()) == nullptr) {
        choose();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PanelWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    // Ends loops that wait for the mouse, too.
    QApplication::quit();
}

}  // namespace vantorel
