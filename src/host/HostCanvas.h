#pragma once

#include "host/HostBezierPath.h"
#include "host/HostColor.h"
#include "host/HostText.h"

#include <functional>

namespace vantorel {

/// A surface to paint on, in points, with y pointing up. New paint covers what is already there
/// (source-over). Painting with a pattern colour has no effect.
class HostCanvas {
public:
    virtual ~HostCanvas() = default;

    virtual void fill(const HostBezierPath& path, const HostColor& color) = 0;
    /// Strokes with the path's own line width, centred on the path.
    virtual void stroke(const HostBezierPath& path, const HostColor& color) = 0;
    /// Draws a text whose lower left corner, when laid out, is `at`.
    virtual void drawText(const HostText& text, HostPoint at) = 0;
};

/// A picture, given by its size and a function that paints it. It costs no memory until it is shown
/// and is sharp at every screen resolution. `paint` must not refer to anything that may be
/// destroyed before the image.
struct HostImage {
    HostSize size;
    std::function<void(HostCanvas&)> paint;
    /// The opacity of the whole picture, 0..1.
    double fraction = 1.0;
};

}  // namespace vantorel
