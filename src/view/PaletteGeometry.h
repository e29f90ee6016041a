#pragma once

#include "host/HostGeometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>

/// The grid of swatches, row 0 at the top.
namespace vantorel {

struct PaletteGrid {
    std::uint64_t across = 0;
    std::uint64_t down = 0;
    HostSize swatch;
};

/// The grid for a number of colours in a rectangle. Around 216 colours the columns are those that
/// the browser-safe list divides into; otherwise the swatches come out nearly square.
[[nodiscard]] PaletteGrid paletteGrid(std::size_t count, HostSize rect);

/// A swatch of the grid, by its column and row.
struct PalettePlace {
    std::uint64_t column = 0;
    std::uint64_t row = 0;

    /// The one that follows in reading order.
    [[nodiscard]] PalettePlace next(const PaletteGrid& grid) const
    {
        return column + 1 < grid.across ? PalettePlace{column + 1, row} : PalettePlace{0, row + 1};
    }
};

/// Where a swatch is drawn, in a rectangle of that height.
[[nodiscard]] HostRect paletteSwatchRect(const PaletteGrid& grid, PalettePlace place,
                                         double rectHeight);
[[nodiscard]] HostRect paletteSwatchRect(const PaletteGrid& grid, std::size_t index,
                                         double rectHeight);

/// The index of the swatch that a click at `point` means in a view of that height, which may be
/// beyond the last one; nothing outside the grid. It differs from the drawing by a point or two at
/// the edges, as it always has.
[[nodiscard]] std::optional<std::size_t> paletteIndexAtPoint(const PaletteGrid& grid,
                                                             HostPoint point, double boundsHeight);

}  // namespace vantorel
