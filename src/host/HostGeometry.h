#pragma once

/// Points, sizes and rectangles. All lengths are in points (device-independent pixels). The y axis
/// points up: a rectangle's origin is its lower left corner.

namespace vantorel {

struct HostPoint {
    double x = 0;
    double y = 0;

    bool operator==(const HostPoint&) const = default;
};

struct HostSize {
    double width = 0;
    double height = 0;

    bool operator==(const HostSize&) const = default;
};

struct HostRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double maxX() const { return x + width; }
    [[nodiscard]] double maxY() const { return y + height; }
    [[nodiscard]] double midX() const { return x + width / 2; }
    [[nodiscard]] double midY() const { return y + height / 2; }
    [[nodiscard]] HostSize size() const { return {width, height}; }
    [[nodiscard]] HostPoint origin() const { return {x, y}; }

    /// Points on the left and bottom edges are inside; points on the right and top edges are not,
    /// so adjacent rectangles never share a point. A NaN coordinate is outside.
    [[nodiscard]] bool contains(HostPoint p) const
    {
        return p.x >= x && p.x < maxX() && p.y >= y && p.y < maxY();
    }

    bool operator==(const HostRect&) const = default;
};

/// Returns `rect` reduced by `dx` on the left and right and by `dy` at the bottom and top.
[[nodiscard]] inline HostRect insetRect(HostRect rect, double dx, double dy)
{
    return {rect.x + dx, rect.y + dy, rect.width - 2 * dx, rect.height - 2 * dy};
}

}  // namespace vantorel
