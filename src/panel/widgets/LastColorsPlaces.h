#pragma once

#include <QRect>
#include <QRectF>
#include <QSize>

#include <optional>
#include <vector>

namespace vantorel {

/// The places in a row of the last colours, or in a grid where there is the height for one.
struct LastColorsPlaces {
    /// A swatch for each colour that is shown: the pinned ones, then the others.
    std::vector<QRectF> swatches;
    /// Between the pinned colours and the others, where both are shown.
    std::optional<QRectF> rule;
    /// The button of the menu.
    QRect button;
    int columns = 1;

    /// Returns the swatch that a point belongs to, or -1. Swatches answer around themselves, too.
    [[nodiscard]] int swatchAt(QPointF point) const;
};

/// Fits in as many colours as possible. Swatches become wider until they fill the width; with fewer
/// colours they keep this size.
[[nodiscard]] LastColorsPlaces placesOfLastColors(QSize size, std::size_t pinned,
                                                  std::size_t others,
                                                  Qt::LayoutDirection direction);

}  // namespace vantorel
