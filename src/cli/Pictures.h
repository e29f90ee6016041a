#pragma once

#include "host/HostColorList.h"
#include "host/HostGeometry.h"

#include <string>

/// Pictures of the picker's palette and wheel, with the same geometry as on the screen. Sizes are
/// in points, or in pixels for PNG. Width and height must be at least `smallestPicture`.
namespace vantorel {

inline constexpr int smallestPicture = 8;
inline constexpr int largestPicture = 16384;

/// Returns the palette as PNG, without names. Empty if libpng fails.
[[nodiscard]] std::string palettePng(const HostColorList& list, HostSize size);
/// Returns the wheel as SVG. `rings` must be a number that the wheel can draw (see
/// `drawnRingCount`).
[[nodiscard]] std::string wheelSvg(int rings, HostSize size);

}  // namespace vantorel
