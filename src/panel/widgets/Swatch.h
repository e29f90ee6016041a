#pragma once

#include "host/HostColor.h"
#include "panel/widgets/ThemeColors.h"

#include <QBrush>
#include <QPainter>
#include <QRectF>
#include <QWidget>

/// Colours as the panel's parts show them. Lengths are device-independent pixels.
namespace vantorel {

/// Returns the squares on which an opacity can be seen. They begin at the origin, and have whole
/// pixels at this number of pixels per device-independent pixel.
[[nodiscard]] QBrush checkersBrush(const ThemeColors& theme, qreal pixelsPerUnit);

/// The radius of a swatch's corners.
[[nodiscard]] qreal swatchRadius();

/// Paints a colour with round corners and a line just inside its edge, over squares if it is
/// translucent. `place` should be on a `PixelGrid`.
void paintSwatch(QPainter& painter, const QRectF& place, const HostColor& color,
                 const ThemeColors& theme);

/// Paints a line just inside the edge of a place with round corners.
void paintSwatchLine(QPainter& painter, const QRectF& place, qreal radius, qreal width,
                     const QColor& color);

/// Starts a drag out of a widget with a colour, shown by a swatch, and returns when it has ended.
/// Returns whether the colour was taken.
bool dragColor(QWidget& source, const HostColor& color);

}  // namespace vantorel
