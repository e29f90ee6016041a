#include "view/PaletteGeometry.h"

#include <cmath>

namespace vantorel {
namespace {

constexpr double drawingOffset = 2.0;
/// The largest number of columns: more than any screen has points, yet far below the integer
/// limits.
constexpr double mostColumns = 1e9;

std::uint64_t browserSafeColumns(HostSize rect)
{
    if (rect.width > rect.height) return 24;
    return 2 * rect.width > rect.height ? 18 : 12;
}

std::uint64_t nearlySquareColumns(std::size_t count, HostSize rect)
{
    const double columns = std::sqrt(static_cast<double>(count) * rect.width / rect.height);
    if (!(columns >= 1)) return 0;
    return static_cast<std::uint64_t>(columns < mostColumns ? columns : mostColumns);
}

/// Returns the integer part of a quotient, truncated towards zero, or `std::nullopt` if it cannot
/// be an index.
std::optional<std::int64_t> integerPart(double quotient)
{
    if (!(std::abs(quotient) < mostColumns)) return std::nullopt;
    return static_cast<std::int64_t>(quotient);
}

}  // namespace

PaletteGrid paletteGrid(std::size_t count, HostSize rect)
{
    PaletteGrid grid;
    if (count == 0) return grid;
    const bool likeBrowserSafe = count > 200 && count < 250;
    grid.across = likeBrowserSafe ? browserSafeColumns(rect) : nearlySquareColumns(count, rect);
    if (grid.across == 0) {
        grid.across = count;
        grid.down = 1;
    } else {
        grid.down = count / grid.across;
    }
    if (grid.down * grid.across < count) ++grid.down;
    grid.swatch = {rect.width / static_cast<double>(grid.across),
                   rect.height / static_cast<double>(grid.down)};
    return grid;
}

HostRect paletteSwatchRect(const PaletteGrid& grid, PalettePlace place, double rectHeight)
{
    const auto column = static_cast<double>(place.column);
    const auto row = static_cast<double>(place.row);
    return {grid.swatch.width * column + drawingOffset,
            rectHeight - row * grid.swatch.height - grid.swatch.height + drawingOffset,
            grid.swatch.width, grid.swatch.height};
}

HostRect paletteSwatchRect(const PaletteGrid& grid, std::size_t index, double rectHeight)
{
    return paletteSwatchRect(grid, PalettePlace{index % grid.across, index / grid.across},
                             rectHeight);
}

std::optional<std::size_t> paletteIndexAtPoint(const PaletteGrid& grid, HostPoint point,
                                               double boundsHeight)
{
    const auto row = integerPart((boundsHeight - 4.0 - (point.y + 2.0)) / grid.swatch.height);
    const auto column = integerPart(point.x / grid.swatch.width);
    if (!row || !column) return std::nullopt;
    const std::int64_t index = *row * static_cast<std::int64_t>(grid.across) + *column;
    if (index < 0) return std::nullopt;
    return static_cast<std::size_t>(index);
}

}  // namespace vantorel
