#include "panel/widgets/WidgetFrame.h"

namespace vantorel {

void paintFrame(QPainter& painter, const QRect& place, const QColor& color, qreal width)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const qreal half = width / 2;
    painter.drawRect(QRectF(place).adjusted(half, half, -half, -half));
    painter.restore();
}

}  // namespace vantorel
