#include "hosts/qt/QtToolButton.h"

#include "hosts/qt/StyleHints.h"

#include <QStyleOption>
#include <QStylePainter>

namespace vantorel {

QtToolButton::QtToolButton(QWidget* parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
}

void QtToolButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // The picture of a button that only opens a menu says so itself.
    if (popupMode() == InstantPopup) option.features &= ~QStyleOptionToolButton::HasMenu;
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    if (!hasFocus() || style()->styleHint(stylePaintsHostControls) != 0) return;
    constexpr qreal width = 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), width));
    painter.drawRoundedRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2),
                            3, 3);
}

}  // namespace vantorel
