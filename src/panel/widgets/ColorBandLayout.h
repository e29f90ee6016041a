#pragma once

#include "panel/widgets/ContrastChip.h"

#include <QFont>
#include <QRectF>

#include <optional>

namespace vantorel {

/// The places of the parts of a colour band, in its coordinates.
struct ColorBandLayout {
    QRect color;
    QRect background;
    /// The middle of the button on the seam.
    QPoint swapCenter;
    /// "Aa" in the colour, on the background.
    QFont sampleFont;
    /// The sample is painted enlarged: loading a font of its own size would cost more at the start
    /// than anything else in the band.
    static constexpr qreal sampleScale = 2;
    QRectF sample;
    /// Empty if it does not fit.
    ContrastChip chip;
    QPointF chipTopLeft;
};

/// Divides a band for a contrast; `std::nullopt` if there is none.
[[nodiscard]] ColorBandLayout layoutOfBand(QSize size, std::optional<double> contrast,
                                           Qt::LayoutDirection direction);

}  // namespace vantorel
