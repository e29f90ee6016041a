#include "screenpick/MagnifierPainting.h"

namespace vantorel {

QColor faintTextOf(const QPalette& palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlpha(90);
    return color;
}

QColor magnifierEdge(const QPalette& palette)
{
    constexpr int darkGround = 128;
    return palette.color(QPalette::Window).lightness() < darkGround ? QColor(255, 255, 255, 90)
                                                                    : QColor(0, 0, 0, 110);
}

void paintPill(QPainter& painter, const QRectF& place, double ratio, const QPalette& palette)
{
    const double corner = place.height() / 2;
    const double half = ratio / 2;
    painter.setPen(QPen(magnifierEdge(palette), ratio));
    painter.setBrush(palette.color(QPalette::Window));
    painter.drawRoundedRect(place.adjusted(-half, -half, half, half), corner, corner);
}

}  // namespace vantorel
