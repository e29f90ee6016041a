#pragma once

#include "host/HostEvent.h"
#include "view/PaletteGeometry.h"
#include "view/SliderGeometry.h"
#include "view/WheelGeometry.h"

#include <cstddef>
#include <vector>

/// Where keys lead in the three modes. The arrows go to the neighbour, Home and End to the ends of
/// the row, Page Up and Page Down to the ends of the column. At an edge, a key leads nowhere.
namespace vantorel {

/// `cell` is the current digit of a column. Left and Right lead to the same value in another
/// column.
[[nodiscard]] SliderCell sliderCellAfterKey(const SliderCell& cell, HostKey key);

/// `count` must be greater than 0, and `index` less than `count`.
[[nodiscard]] std::size_t paletteIndexAfterKey(const PaletteGrid& grid, std::size_t count,
                                               std::size_t index, HostKey key);

/// `index` must be a valid index of `cells`. Every cell can be reached from every other.
[[nodiscard]] std::size_t wheelIndexAfterKey(const std::vector<WheelCell>& cells, std::size_t index,
                                             HostKey key);

}  // namespace vantorel
