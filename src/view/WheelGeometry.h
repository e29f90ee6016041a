#pragma once

#include "host/HostGeometry.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

/// The geometry of the wheel: hexagonal rings of hues around the six edges of the RGB colour cube,
/// tints in the outer half, shades in the inner half, and six greys in the middle. Its cells are
/// triangles with one vertical edge, as long as the triangle is wide.
namespace vantorel {

/// The limits of the ring count. Settings may store any number; it is clamped where it is used.
inline constexpr int fewestDrawnRings = 2;
inline constexpr int mostDrawnRings = 128;

/// Returns a stored ring count clamped to these limits.
[[nodiscard]] int drawnRingCount(std::int64_t stored);

struct WheelCell {
    std::array<HostPoint, 3> corners;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// One of the six greys in the middle.
    bool center = false;
};

/// The position and scale of a wheel, computed from the size of its rectangle.
struct WheelPlace {
    HostPoint center;
    double unit = 0;  ///< width and height of a cell
    int rings = fewestDrawnRings;
};

[[nodiscard]] WheelPlace wheelPlace(HostSize rect, int rings);

/// Returns the corners of the outermost hexagon, clockwise from the lower left one.
[[nodiscard]] std::array<HostPoint, 6> wheelOutline(const WheelPlace& place);

/// Returns all 6 n² cells in drawing order: the rings from the outside in, each clockwise from its
/// lower left corner, then the greys.
[[nodiscard]] std::vector<WheelCell> wheelCells(const WheelPlace& place);

/// Returns the cell with the centroid nearest to a point, the earlier one of two at the same
/// distance, or `std::nullopt` outside the outermost hexagon.
[[nodiscard]] std::optional<WheelCell> wheelCellAtPoint(const WheelPlace& place, HostPoint point);

}  // namespace vantorel
