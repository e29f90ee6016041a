#include "view/SliderGeometry.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr int columnCount = 15;
constexpr int rowCount = 16;
constexpr int columnsPerComponent = 5;
constexpr int highDigitColumn = 1;
constexpr int lowDigitColumn = 3;

}  // namespace

HostRect sliderMatrixRect(HostRect bounds)
{
    return insetRect(bounds, 1.0, 6.0);
}

HostSize sliderCellSize(HostRect matrix)
{
    return {matrix.width / columnCount, matrix.height / rowCount};
}

HostRect sliderCellRect(HostRect matrix, HostSize cellSize, const SliderCell& cell)
{
    const int column =
        cell.component * columnsPerComponent + (cell.digit != 0 ? highDigitColumn : lowDigitColumn);
    return {matrix.x + cellSize.width * column, matrix.y + cellSize.height * cell.value,
            cellSize.width, cellSize.height};
}

std::optional<SliderCell> sliderCellAtPoint(HostRect matrix, HostPoint point)
{
    if (!matrix.contains(point)) return std::nullopt;
    const HostSize cellSize = sliderCellSize(matrix);
    const int column = static_cast<int>((point.x - matrix.x) / cellSize.width);
    // Rounding can place a point just below the top edge into a row that does not exist.
    const int row =
        std::min(static_cast<int>((point.y - matrix.y) / cellSize.height), rowCount - 1);
    const int place = column % columnsPerComponent;
    if (column >= columnCount || (place != highDigitColumn && place != lowDigitColumn)) {
        return std::nullopt;
    }
    return SliderCell{column / columnsPerComponent, place == highDigitColumn ? 1 : 0, row};
}

}  // namespace vantorel
