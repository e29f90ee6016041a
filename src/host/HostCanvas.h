#pragma once

#include "host/HostBezierPath.h"
#include "host/HostColor.h"
#include "host/HostPixels.h"
#include "host/HostText.h"

#include <functional>

namespace vantorel {

/// What a page that paints its own controls needs of the desktop's colours.
enum class HostThemeColor {
    /// The ground of the page.
    window,
    /// The ground of fields.
    base,
    text,
    /// Texts of less weight, such as units. At least 4.5:1 on `window`.
    secondaryText,
    /// Borders of what can be operated. At least 3:1 on `window`.
    edge,
    /// Rules that carry no meaning.
    line,
    /// The keyboard focus.
    accent,
};

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

    /// Draws a picture into `rect`, whose edges are first moved to the nearest whole pixels of the
    /// device, as those of fills are. A picture of `pixelSizeOf(rect)` is shown pixel by pixel. Any
    /// other is stretched to the nearest pixels without blending them. An empty picture or
    /// rectangle has no effect. The picture is not referred to afterwards.
    virtual void drawPixels(const HostPixels& pixels, HostRect rect) = 0;
    /// Returns how many pixels of the device `drawPixels` covers. Not negative.
    [[nodiscard]] virtual HostPixelSize pixelSizeOf(HostRect rect) const = 0;

    /// Returns a colour of the theme, as it suits the ground on which the canvas is shown. A view
    /// is redrawn when the theme changes.
    [[nodiscard]] virtual HostColor themeColor(HostThemeColor kind) const = 0;
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
