#include "view/WheelGeometry.h"

#include "color/ColorMeasures.h"
#include "host/HostBezierPath.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr double halfSqrt3 = 0.8660254037844387;
constexpr auto centerGreys = std::to_array<std::uint8_t>({192, 255, 0, 48, 96, 144});

/// The corners of the hexagon of size 1, in units, clockwise from the lower left one. The
/// difference of two neighbouring corners is again a corner, so all cells lie on one triangular
/// lattice.
constexpr std::array<HostPoint, 6> corners{{
    {-1, -0.5},
    {-1, 0.5},
    {0, 1},
    {1, 0.5},
    {1, -0.5},
    {0, -1},
}};

enum Component : std::size_t { red, green, blue };

/// The colours along one side of a ring: one component stays high, one stays low, one is a ramp.
struct SideColors {
    Component high;
    Component low;
    Component ramp;
    bool rampsUp;
};

constexpr std::array<SideColors, 6> sides{{
    {red, blue, green, true},   // red to yellow
    {green, blue, red, false},  // yellow to green
    {green, red, blue, true},   // green to cyan
    {blue, red, green, false},  // cyan to blue
    {blue, green, red, true},   // blue to magenta
    {red, green, blue, false},  // magenta to red
}};

struct RingColors {
    int high = 255;
    int low = 0;
};

/// Returns the colours of a ring. The outer rings are tints, the inner ones shades. `size` is n for
/// the outermost ring and 1 for the innermost.
RingColors ringColors(int rings, int size)
{
    const int half = rings / 2;
    if (size > half) return {255, (rings - size) * (256 / (rings - half))};
    return {255 - (half - size + 1) * (255 / half), 0};
}

HostPoint pointOnLattice(const WheelPlace& place, HostPoint units)
{
    return {place.center.x + units.x * place.unit, place.center.y + units.y * place.unit};
}

/// Returns triangle `index` of a ring's side. Even triangles have an edge on the outer hexagon, odd
/// ones on the inner hexagon.
std::array<HostPoint, 3> triangle(const WheelPlace& place, int ring, std::size_t side, int index)
{
    const HostPoint from = corners[side];
    const HostPoint to = corners[(side + 1) % corners.size()];
    const auto onHexagon = [&](int size, int step) {
        return pointOnLattice(place, {from.x * size + (to.x - from.x) * step,
                                      from.y * size + (to.y - from.y) * step});
    };
    const int step = index / 2;
    if (index % 2 == 0) {
        return {onHexagon(ring, step), onHexagon(ring, step + 1), onHexagon(ring - 1, step)};
    }
    return {onHexagon(ring - 1, step), onHexagon(ring, step + 1), onHexagon(ring - 1, step + 1)};
}

void appendSide(std::vector<WheelCell>& cells, const WheelPlace& place, int ring, std::size_t side)
{
    const auto [high, low] = ringColors(place.rings, ring);
    const SideColors& colors = sides[side];
    const int count = 2 * ring - 1;
    float value = static_cast<float>(colors.rampsUp ? low : high);
    const float step = static_cast<float>(high - low) / static_cast<float>(count);
    std::array<std::uint8_t, 3> rgb{};
    rgb[colors.high] = static_cast<std::uint8_t>(high);
    rgb[colors.low] = static_cast<std::uint8_t>(low);
    rgb[colors.ramp] = static_cast<std::uint8_t>(value);
    for (int index = 0; index < count; ++index) {
        cells.push_back({triangle(place, ring, side, index), rgb[red], rgb[green], rgb[blue]});
        value += colors.rampsUp ? step : -step;
        rgb[colors.ramp] = static_cast<std::uint8_t>(value + 0.49F);
    }
}

}  // namespace

int drawnRingCount(std::int64_t stored)
{
    return static_cast<int>(std::clamp<std::int64_t>(stored, fewestDrawnRings, mostDrawnRings));
}

WheelPlace wheelPlace(HostSize rect, int rings)
{
    return {{rect.width / 2, rect.height / 2},
            std::min(rect.width, rect.height) / (2.0 * rings) * halfSqrt3,
            rings};
}

std::array<HostPoint, 6> wheelOutline(const WheelPlace& place)
{
    std::array<HostPoint, 6> outline;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        outline[i] =
            pointOnLattice(place, {corners[i].x * place.rings, corners[i].y * place.rings});
    }
    return outline;
}

std::vector<WheelCell> wheelCells(const WheelPlace& place)
{
    std::vector<WheelCell> cells;
    cells.reserve(6 * static_cast<std::size_t>(place.rings) *
                  static_cast<std::size_t>(place.rings));
    for (int ring = place.rings; ring >= 2; --ring) {
        for (std::size_t side = 0; side < sides.size(); ++side) {
            appendSide(cells, place, ring, side);
        }
    }
    for (std::size_t side = 0; side < sides.size(); ++side) {
        const std::uint8_t grey = centerGreys[side];
        cells.push_back({triangle(place, 1, side, 0), grey, grey, grey, true});
    }
    return cells;
}

std::optional<WheelCell> wheelCellAtPoint(const WheelPlace& place, HostPoint point)
{
    HostBezierPath outline;
    const auto hexagon = wheelOutline(place);
    outline.moveToPoint(hexagon.front());
    for (std::size_t i = 1; i < hexagon.size(); ++i)
        outline.lineToPoint(hexagon[i]);
    outline.closePath();
    if (!outline.containsPoint(point)) return std::nullopt;

    std::optional<WheelCell> nearest;
    double best = 1000000.0;
    for (const WheelCell& cell : wheelCells(place)) {
        const auto& [a, b, c] = cell.corners;
        const double distance =
            distanceBetweenPoints(3 * point.x, 3 * point.y, a.x + b.x + c.x, a.y + b.y + c.y);
        if (best > distance) {
            best = distance;
            nearest = cell;
        }
    }
    return nearest;
}

}  // namespace vantorel
