#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace vantorel {

/// Paints a frame inside the edges of a rectangle. All four sides are visible at every scale.
/// Without antialiasing, at 125 % and 150 %, the sides at the edge of a widget may be rounded out
/// of it.
void paintFrame(QPainter& painter, const QRect& place, const QColor& color, qreal width);

}  // namespace vantorel
