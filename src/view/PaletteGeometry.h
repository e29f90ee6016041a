#pragma once

#include "host/HostGeometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>

/// The grid of swatches in the palette. Row 0 is at the top.
namespace vantorel {

struct PaletteGrid {
    std::uint64_t across = 0;
    std::uint64_t down = 0;
    HostSize swatch;
};

/// Returns the grid for a number of colours in a rectangle. For 201 to 249 colours, the number of
/// columns divides the 216 colours of the browser-safe list evenly; otherwise the swatches are
/// nearly square.
[[nodiscard]] PaletteGrid paletteGrid(std::size_t count, HostSize rect);

/// The position of a swatch in the grid.
struct PalettePlace {
    std::uint64_t column = 0;
    std::uint64_t row = 0;

    /// Returns the next position in reading order.
    [[nodiscard]] PalettePlace next(const PaletteGrid& grid) const
    {
        return column + 1 < grid.across ? PalettePlace{column + 1, row} : PalettePlace{0, row + 1};
    }
};

/// Returns the rectangle of a swatch in a rectangle of that height.
[[nodiscard]] HostRect paletteSwatchRect(const PaletteGrid& grid, PalettePlace place,
                                         double rectHeight);
[[nodiscard]] HostRect paletteSwatchRect(const PaletteGrid& grid, std::size_t index,
                                         double rectHeight);

/// Returns the index of the swatch at `point` in a view of that height, or `std::nullopt` outside
/// the grid. The index may be beyond the last swatch. At the edges it differs from the drawn
/// rectangles by a point or two; this is kept for compatibility.
[[nodiscard]] std::optional<std::size_t> paletteIndexAtPoint(const PaletteGrid& grid,
                                                             HostPoint point, double boundsHeight);

}  // namespace vantorel
