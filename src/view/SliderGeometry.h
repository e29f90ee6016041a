#pragma once

#include "host/HostGeometry.h"

#include <optional>

/// The matrix of hex digits: 15 columns of 16 rows, of which six columns are used. Each holds one
/// digit of one component, the row being the digit's value, 0 at the bottom.
namespace vantorel {

/// One cell of the matrix, or what a point of it stands for.
struct SliderCell {
    int component = 0;  ///< 0 red, 1 green, 2 blue
    int digit = 0;      ///< 1 the high hex digit, 0 the low one
    int value = 0;      ///< 0..15

    bool operator==(const SliderCell&) const = default;
};

/// The matrix within the view's bounds.
[[nodiscard]] HostRect sliderMatrixRect(HostRect bounds);

/// The size of one cell.
[[nodiscard]] HostSize sliderCellSize(HostRect matrix);

[[nodiscard]] HostRect sliderCellRect(HostRect matrix, HostSize cellSize, const SliderCell& cell);

/// The cell under a point; nothing outside the matrix and in the gaps between its columns.
[[nodiscard]] std::optional<SliderCell> sliderCellAtPoint(HostRect matrix, HostPoint point);

}  // namespace vantorel
