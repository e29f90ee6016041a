#pragma once

#include <QPainter>
#include <QRectF>

namespace vantorel {

/// The pixels of the screen below a widget, in its own coordinates. At scales such as 1.25 an edge
/// on a whole coordinate may lie within a pixel, and would be blurred.
class PixelGrid {
public:
    /// Moves the painter's origin to the nearest pixel. The painter must be neither rotated nor
    /// mirrored.
    explicit PixelGrid(QPainter& painter);

    /// Returns the nearest edge between two pixels.
    [[nodiscard]] qreal nearest(qreal coordinate) const;
    [[nodiscard]] QRectF nearest(const QRectF& place) const;
    /// Returns the width of a line, in whole pixels, at least one.
    [[nodiscard]] qreal lineWidth(qreal width) const;
    [[nodiscard]] qreal pixelsPerUnit() const { return _scale; }

private:
    qreal _scale = 1;
};

}  // namespace vantorel
