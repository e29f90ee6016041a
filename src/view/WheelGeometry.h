#pragma once

#include "host/HostGeometry.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

/// The wheel: hexagonal rings of hues around the six edges of the RGB colour cube, tints in the
/// outer half, shades in the inner one, six greys in the middle. Its cells are triangles with one
/// vertical edge as long as the triangle is wide.
namespace vantorel {

/// The ring counts that are drawn. What is stored may be anything; it is clamped where it is used.
inline constexpr int fewestDrawnRings = 2;
inline constexpr int mostDrawnRings = 128;

/// A stored ring count as it is drawn.
[[nodiscard]] int drawnRingCount(std::int64_t stored);

struct WheelCell {
    std::array<HostPoint, 3> corners;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// One of the six greys in the middle.
    bool center = false;
};

/// The place of a wheel: unit and centre from a rectangle's size alone.
struct WheelPlace {
    HostPoint center;
    double unit = 0;  ///< width and height of a cell
    int rings = fewestDrawnRings;
};

[[nodiscard]] WheelPlace wheelPlace(HostSize rect, int rings);

/// The corners of the outermost hexagon, from the lower left one clockwise.
[[nodiscard]] std::array<HostPoint, 6> wheelOutline(const WheelPlace& place);

/// All 6 n² cells in drawing order: the rings from the outside in, each from its lower left corner
/// clockwise, then the greys.
[[nodiscard]] std::vector<WheelCell> wheelCells(const WheelPlace& place);

/// The cell under a point: the one with the nearest centroid, the earlier of two equally near.
/// Nothing outside the outermost hexagon.
[[nodiscard]] std::optional<WheelCell> wheelCellAtPoint(const WheelPlace& place, HostPoint point);

}  // namespace vantorel
