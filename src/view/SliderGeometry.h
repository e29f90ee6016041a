#pragma once

#include "host/HostGeometry.h"

#include <optional>

/// The matrix of hex digits: 15 columns of 16 rows, of which six columns are used. Each of them
/// holds one digit of one component. The row is the digit's value, 0 at the bottom.
namespace vantorel {

/// A cell of the matrix: a digit of a component and its value.
struct SliderCell {
    int component = 0;  ///< 0 red, 1 green, 2 blue
    int digit = 0;      ///< 1 the high hex digit, 0 the low one
    int value = 0;      ///< 0..15

    bool operator==(const SliderCell&) const = default;
};

/// Returns the rectangle of the matrix within the view's bounds.
[[nodiscard]] HostRect sliderMatrixRect(HostRect bounds);

/// Returns the size of one cell.
[[nodiscard]] HostSize sliderCellSize(HostRect matrix);

[[nodiscard]] HostRect sliderCellRect(HostRect matrix, HostSize cellSize, const SliderCell& cell);

/// Returns the cell at a point, or `std::nullopt` outside the matrix and in the gaps between its
/// columns.
[[nodiscard]] std::optional<SliderCell> sliderCellAtPoint(HostRect matrix, HostPoint point);

}  // namespace vantorel
