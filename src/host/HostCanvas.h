#pragma once

#include "host/HostBezierPath.h"
#include "host/HostColor.h"
#include "host/HostText.h"

#include <functional>

namespace vantorel {

/// A surface to paint on, in points with y up. What is painted later covers what is there
/// (source-over); a pattern colour paints nothing.
class HostCanvas {
public:
    virtual ~HostCanvas() = default;

    virtual void fill(const HostBezierPath& path, const HostColor& color) = 0;
    /// With the path's own line width, centred on the path.
    virtual void stroke(const HostBezierPath& path, const HostColor& color) = 0;
    /// `at` is the lower left corner of the laid-out text.
    virtual void drawText(const HostText& text, HostPoint at) = 0;
};

/// A picture as its size and the way to paint it, so that it costs nothing until it is shown and is
/// sharp on every screen. `paint` must not refer to anything that can end before the image.
struct HostImage {
    HostSize size;
    std::function<void(HostCanvas&)> paint;
    /// Opacity of the picture as a whole, 0..1.
    double fraction = 1.0;
};

}  // namespace vantorel
