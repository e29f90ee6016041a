#pragma once

#include "host/HostView.h"

/// Conversion between the coordinates of the core and those of toolkits. The core's y points up and
/// bounds may have any origin; in a toolkit y points down from a widget's upper left corner.
/// `scale` is the number of device-independent pixels per point (see TextScale.h).
namespace vantorel {

/// A point of a widget, in device-independent pixels, y down.
struct PixelPoint {
    double x = 0;
    double y = 0;

    bool operator==(const PixelPoint&) const = default;
};

/// A rectangle of whole device-independent pixels, y down.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const PixelRect&) const = default;
};

/// Convert a point of a widget to the coordinates of the view that it shows, and back. `bounds` are
/// the view's.
[[nodiscard]] HostPoint viewPoint(PixelPoint inWidget, HostRect bounds, double scale);
[[nodiscard]] PixelPoint pixelPoint(HostPoint inView, HostRect bounds, double scale);

/// Returns the place of a view's widget in the widget of its superview. It rounds edges, not sizes,
/// so that adjacent views stay adjacent.
[[nodiscard]] PixelRect pixelFrame(HostRect frame, HostRect superviewBounds, double scale);

/// Whether a widget must be visible: its view has a superview, is not parked, and lies inside its
/// superview at least in part. The core hides views by parking them, or by moving them outside.
/// Neither the mouse nor Tab nor assistive technology must find them there.
[[nodiscard]] bool isInSight(const HostView& view, double scale);

}  // namespace vantorel
