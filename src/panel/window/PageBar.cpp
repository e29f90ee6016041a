#include "panel/window/PageBar.h"

#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/ThemeColors.h"

#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

namespace vantorel {
namespace {

// In points.
constexpr int iconPoints = 16;
constexpr int buttonPoints = 28;
constexpr int bleedPoints = 6;

}  // namespace

PageBar::PageBar(QWidget* parent)
    : QWidget(parent), _tabs(new PageTabs(this)), _menuButton(new QtToolButton(this))
{
    setObjectName(QStringLiteral("pageBar"));
    _menuButton->setIconSize(QSize(scaled(iconPoints), scaled(iconPoints)));
    _menuButton->setIcon(menuIcon());
    _menuButton->setToolTip(tr("Commands"));
    _menuButton->setAccessibleName(tr("Commands"));
    _menuButton->setPopupMode(QToolButton::InstantPopup);
    connect(_tabs, &QTabBar::currentChanged, this, [this](int index) {
        layOut();
        emit pageChosen(index);
    });
}

int PageBar::bleed()
{
    return scaled(bleedPoints);
}

void PageBar::addPage(const QIcon& icon, const QString& name, const QString& toolTip)
{
    // The first page is shown by the window.
    const QSignalBlocker blocker(_tabs);
    _tabs->addPage(icon, name, toolTip);
    layOut();
}

void PageBar::showPage(int index)
{
    const QSignalBlocker blocker(_tabs);
    _tabs->setCurrentIndex(index);
    layOut();
}

void PageBar::setMenu(QMenu& menu)
{
    _menuButton->setMenu(&menu);
}

void PageBar::layOut()
{
    const int button = scaled(buttonPoints);
    const int tabsWidth = _tabs->fitInto(width() - 2 * bleed() - button);
    const auto place = [&](QWidget& widget, const QRect& where) {
        widget.setGeometry(QStyle::visualRect(layoutDirection(), rect(), where));
    };
    place(*_tabs, {bleed() - _tabs->padding(), 0, tabsWidth, height()});
    place(*_menuButton, {width() - button, (height() - button) / 2, button, button});
}

void PageBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(QRect(bleed(), height() - 1, width() - 2 * bleed(), 1),
                     themeColors(palette()).line);
}

void PageBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void PageBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) layOut();
}

}  // namespace vantorel
