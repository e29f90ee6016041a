#pragma once

#include "host/HostBezierPath.h"

#include <array>
#include <optional>

/// The edges of painted lines. Horizontal and vertical lines lie on whole pixels of the device, so
/// that they are crisp; as filled bars they take a tenth of the time of a smooth stroke.
///
/// `ratio` is the number of device pixels per device-independent pixel.
namespace vantorel {

/// Returns the rectangle that a path describes, if its sides are horizontal and vertical.
[[nodiscard]] std::optional<HostRect> uprightRect(const HostBezierPath& path);
/// Whether a path is one closed polygon: its elements but the last are its corners, in order.
[[nodiscard]] bool isPolygon(const HostBezierPath& path);
/// Whether a path is made of open lines only. An outline must stay exactly on its shape, but an
/// open line may be moved to the middle of pixels.
[[nodiscard]] bool isOpenLine(const HostBezierPath& path);

/// A rectangle in device-independent pixels, y down, with edges on pixels of the device.
struct PaintedBar {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    [[nodiscard]] double width() const { return right - left; }
    [[nodiscard]] double height() const { return bottom - top; }
    bool operator==(const PaintedBar&) const = default;
};

/// Returns the four bars that stroke a rectangle: above, below, left and right. They do not
/// overlap. `lineWidth` is in device-independent pixels.
[[nodiscard]] std::array<PaintedBar, 4> barsOfStroke(PaintedBar rect, double lineWidth,
                                                     double ratio);

/// Returns the middle of the device's pixel that contains a coordinate.
[[nodiscard]] double middleOfPixel(double x, double ratio);
/// Returns half the width of a stroke of whole pixels of the device, at least one.
[[nodiscard]] double halfStrokeWidth(double lineWidth, double ratio);

}  // namespace vantorel
