#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>

/// What the parts of the magnifier have in common. Lengths are pixels of the screen, of which there
/// are `ratio` in a device-independent one.
namespace vantorel {

/// Palettes derived from two colours have no mid tone that is visible on a dark background.
[[nodiscard]] QColor faintTextOf(const QPalette& palette);

/// The line that keeps a part apart from a picture of its own colour.
[[nodiscard]] QColor magnifierEdge(const QPalette& palette);

/// Paints a ground with round ends.
void paintPill(QPainter& painter, const QRectF& place, double ratio, const QPalette& palette);

}  // namespace vantorel
