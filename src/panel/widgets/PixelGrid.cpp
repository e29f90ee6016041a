#include "panel/widgets/PixelGrid.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

PixelGrid::PixelGrid(QPainter& painter)
{
    const QTransform toPixels = painter.deviceTransform();
    _scale = toPixels.m11();
    const auto offset = [this](qreal pixels) { return (std::round(pixels) - pixels) / _scale; };
    painter.translate(offset(toPixels.dx()), offset(toPixels.dy()));
}

qreal PixelGrid::nearest(qreal coordinate) const
{
    return std::round(coordinate * _scale) / _scale;
}

QRectF PixelGrid::nearest(const QRectF& place) const
{
    return {QPointF(nearest(place.left()), nearest(place.top())),
            QPointF(nearest(place.right()), nearest(place.bottom()))};
}

qreal PixelGrid::lineWidth(qreal width) const
{
    return std::max(1.0, std::round(width * _scale)) / _scale;
}

}  // namespace vantorel
