#include "panel/PanelWindow.h"

#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QSignalBlocker>
#include <QToolButton>

#include <cmath>

namespace vantorel {
namespace {

// In points, as the pages are.
constexpr int topBarPoints = 32;
constexpr int bottomBarPoints = 30;
constexpr int problemsPoints = 20;
constexpr QSize firstPageSize{260, 340};

int scaled(int points)
{
    return qRound(points * textScale());
}

QSize scaled(QSize points)
{
    return {scaled(points.width()), scaled(points.height())};
}

}  // namespace

PanelWindow::PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                         std::vector<std::string>& problems)
    : QtColorPanel(desktop)
{
    setWindowTitle(QStringLiteral("Colour"));
    setAccessibleRole(*this, QAccessible::Window);
    makeBars();
    auto* place = new QWidget(this);
    _holder = std::make_unique<QtMirrored<HostView>>(HostRect{}, place);
    place->setVisible(true);

    for (const LoadedPlugin& plugin : plugins) {
        std::string reason;
        auto picker = plugin.makePicker(*this, reason);
        if (picker) {
            addPage(std::make_unique<PluginPage>(plugin, std::move(picker)));
        } else {
            problems.push_back(plugin.file() + " is left out: " + reason);
        }
    }
    if (!_pages.empty()) setWindowIcon(_pages.front()->icon());
    addPage(std::make_unique<DialogPage>(
        [this](const QColor& chosen) { chooseColor(hostColorFrom(chosen)); }));
    resizeToPage(firstPageSize);
    showPage(0);
    showColor();
}

PanelWindow::~PanelWindow()
{
    // The pages' views stand in the holder, whose widget belongs to the window.
    _pages.clear();
    _holder.reset();
}

void PanelWindow::makeBars()
{
    _topBar = new QWidget(this);
    auto* top = new QHBoxLayout(_topBar);
    top->setContentsMargins(10, 3, 10, 1);
    top->setSpacing(2);
    _pageButtons = new QButtonGroup(this);
    _pageButtons->setExclusive(true);
    // Not `idClicked`: assistive technology toggles without a click.
    connect(_pageButtons, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked) showPage(id);
    });
    _pageName = new QLabel(_topBar);
    _pageName->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    _pageName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    _pageName->setAccessibleDescription(QStringLiteral("Current page"));
    top->addStretch(0);
    top->addWidget(_pageName, 1);

    _bottomBar = new QWidget(this);
    auto* bottom = new QHBoxLayout(_bottomBar);
    bottom->setContentsMargins(10, 3, 10, 7);
    bottom->setSpacing(6);
    _well = new ColorWell(_bottomBar);
    _well->setFixedSize(scaled(QSize(44, 20)));
    setAccessibleRole(*_well, QAccessible::Graphic);
    _opacity = new QSlider(Qt::Horizontal, _bottomBar);
    _opacity->setRange(0, 100);
    _opacity->setMinimumWidth(30);
    _opacity->setToolTip(QStringLiteral("Opacity"));
    _opacity->setAccessibleName(QStringLiteral("Opacity"));
    connect(_opacity, &QSlider::valueChanged, this, [this](int value) { opacityChosen(value); });
    _opacityText = new QLabel(_bottomBar);
    _opacityText->setFont(fontOfSize(11));
    _opacityText->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    _opacityText->setFixedWidth(
        QFontMetrics(_opacityText->font()).horizontalAdvance(QStringLiteral("100 %")) + 2);
    bottom->addWidget(_well);
    bottom->addWidget(_opacity, 1);
    bottom->addWidget(_opacityText);

    _problems = new QLabel(this);
    _problems->setVisible(false);
    _problems->setFont(fontOfSize(10));
    _problems->setMargin(4);
    _problems->setTextFormat(Qt::PlainText);
}

void PanelWindow::addPage(std::unique_ptr<PanelPage> page)
{
    const int iconSize = scaled(18);
    auto* button = new QToolButton(_topBar);
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIcon(page->icon());
    button->setIconSize(QSize(iconSize, iconSize));
    button->setToolTip(page->toolTip());
    button->setAccessibleName(page->name());
    const int index = pageCount();
    _pageButtons->addButton(button, index);
    static_cast<QHBoxLayout*>(_topBar->layout())->insertWidget(index, button);
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
    _pageButtons->button(index)->setChecked(true);
    _pageName->setText(page.name());
    page.show(*_holder);
    pageDidAppear();
    page.setColor(_color);
    const QSize least = scaled(page.minimumSize() + QSize(0, topBarPoints + bottomBarPoints));
    setMinimumSize(least);
    resize(size().expandedTo(least));
    layOut();
}

void PanelWindow::chooseColor(const HostColor& color)
{
    setColor(color);
}

QColor PanelWindow::chosenColor() const
{
    return qColorFrom(_color);
}

void PanelWindow::setColor(const HostColor& color)
{
    const bool changed = color != _color;
    _color = color;
    showColor();
    if (PanelPage* page = currentPage()) page->setColor(color);
    if (changed && _colorObserver) _colorObserver(qColorFrom(color));
}

void PanelWindow::showColor()
{
    _well->setColor(qColorFrom(_color));
    const int percent = static_cast<int>(std::lround(qColorFrom(_color).alphaF() * 100));
    const QSignalBlocker blocker(_opacity);
    _opacity->setValue(percent);
    _opacityText->setText(QStringLiteral("%1 %").arg(percent));
}

void PanelWindow::opacityChosen(int percent)
{
    chooseColor(_color.colorWithAlphaComponent(percent / 100.0));
}

void PanelWindow::showProblems(const std::vector<std::string>& problems)
{
    QStringList lines;
    for (const std::string& problem : problems)
        lines.append(QString::fromStdString(problem));
    _problems->setVisible(!lines.isEmpty());
    _problems->setToolTip(lines.join(u'\n'));
    _problems->setText(lines.size() == 1
                           ? QStringLiteral("A plug-in was left out")
                           : QStringLiteral("%1 plug-ins were left out").arg(lines.size()));
    layOut();
}

void PanelWindow::resizeToPage(QSize page)
{
    resize(scaled(page + QSize(0, topBarPoints + bottomBarPoints)));
    layOut();
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
    const int bottomBarHeight = scaled(bottomBarPoints);
    const int problems = _problems->isVisibleTo(this) ? scaled(problemsPoints) : 0;
    const int pageHeight = std::max(0, height() - topBarHeight - bottomBarHeight - problems);
    _topBar->setGeometry(0, 0, width(), topBarHeight);
    _bottomBar->setGeometry(0, topBarHeight + pageHeight, width(), bottomBarHeight);
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

void PanelWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    // Ends loops that wait for the mouse, too.
    QApplication::quit();
}

}  // namespace vantorel
