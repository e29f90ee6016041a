#include "hosts/qt/QtToolButton.h"

#include "hosts/qt/StyleHints.h"

#include <QPainter>

namespace vantorel {

QtToolButton::QtToolButton(QWidget* parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
}

void QtToolButton::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    if (!hasFocus() || style()->styleHint(stylePaintsHostControls) != 0) return;
    constexpr qreal width = 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), width));
    painter.drawRoundedRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2),
                            3, 3);
}

}  // namespace vantorel
