#pragma once

#include "host/HostColorList.h"
#include "host/HostGeometry.h"

#include <string>

/// The picker's palette and wheel as pictures, by the same geometry as on the screen. Sizes are in
/// points, or pixels of a PNG, and must be at least `smallestPicture` wide and high.
namespace vantorel {

inline constexpr int smallestPicture = 8;
inline constexpr int largestPicture = 16384;

/// The palette as PNG, without names; empty when it cannot be made.
[[nodiscard]] std::string palettePng(const HostColorList& list, HostSize size);
/// `rings` must be a number that is drawn (see `drawnRingCount`).
[[nodiscard]] std::string wheelSvg(int rings, HostSize size);

}  // namespace vantorel
