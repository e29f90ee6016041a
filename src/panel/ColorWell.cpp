#include "panel/ColorWell.h"

#include <QPainter>

namespace vantorel {
namespace {

constexpr int checkSize = 5;

}  // namespace

ColorWell::ColorWell(QWidget* parent) : QWidget(parent)
{
    setAccessibleName(QStringLiteral("Colour"));
}

void ColorWell::setColor(const QColor& color)
{
    if (color == _color) return;
    _color = color;
    const QString text = color.name(QColor::HexArgb);
    setToolTip(text);
    setAccessibleDescription(text);
    update();
}

void ColorWell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    QRect right = inside;
    right.setLeft(inside.center().x());
    painter.fillRect(right, Qt::white);
    for (int y = right.top(); y <= right.bottom(); y += checkSize) {
        for (int x = right.left(); x <= right.right(); x += checkSize) {
            const bool dark =
                ((x - right.left()) / checkSize + (y - right.top()) / checkSize) % 2 == 1;
            if (dark) {
                painter.fillRect(QRect(x, y, checkSize, checkSize).intersected(right),
                                 QColor(190, 190, 190));
            }
        }
    }
    QColor opaque = _color;
    opaque.setAlpha(255);
    painter.fillRect(inside, _color);
    painter.fillRect(QRect(inside.topLeft(), QPoint(right.left() - 1, inside.bottom())), opaque);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace vantorel
