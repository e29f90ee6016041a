#pragma once

#include "host/HostCanvas.h"
#include "hosts/common/PaintedLines.h"
#include "hosts/common/PixelFrames.h"
#include "hosts/common/ThemeMixtures.h"
#include "hosts/gtk/GtkReferences.h"

namespace vantorel {

/// Paints through cairo. Fills have hard edges, so that neighbours meet without seams; strokes are
/// smooth, except that horizontal and vertical ones lie on whole pixels of the device.
class CairoCanvas final : public HostCanvas {
public:
    /// The context shows `bounds`, and its origin is their upper left corner; it must outlive the
    /// canvas. `devicePixels`: how many pixels of the device are in one of GTK. `theme` is that of
    /// the ground.
    CairoCanvas(cairo_t* cairo, HostRect bounds, double devicePixels, const ThemeBasis& theme = {});

    void fill(const HostBezierPath& path, const HostColor& color) override;
    void stroke(const HostBezierPath& path, const HostColor& color) override;
    void drawText(const HostText& text, HostPoint at) override;
    void drawPixels(const HostPixels& pixels, HostRect rect) override;
    [[nodiscard]] HostPixelSize pixelSizeOf(HostRect rect) const override;
    [[nodiscard]] HostColor themeColor(HostThemeColor kind) const override
    {
        return themeColorOf(_theme, kind);
    }

private:
    [[nodiscard]] PixelPoint placed(HostPoint point) const;
    [[nodiscard]] PaintedBar placed(HostRect rect) const;
    /// With its edges on whole pixels of the device.
    [[nodiscard]] PaintedBar onPixels(HostRect rect) const;
    void tracePath(const HostBezierPath& path);
    void fillBar(const PaintedBar& bar);
    void strokeOpenLine(const HostBezierPath& path);

    cairo_t* _cairo;
    HostRect _bounds;
    double _scale;
    double _devicePixels;
    ThemeBasis _theme;
    /// Anything outside need not be painted.
    PaintedBar _dirty;
};

/// The size of an image in pixels of GTK.
[[nodiscard]] HostSize sizeInPixels(const HostImage& image);

/// Paints an image with its upper left corner at the context's origin.
void paintImage(cairo_t* cairo, const HostImage& image, double devicePixels);

/// Renders an image for a device with this number of pixels in one of GTK.
[[nodiscard]] CairoSurface surfaceOfImage(const HostImage& image, double devicePixels);

/// The size of a text as `drawText` draws it, in points.
[[nodiscard]] HostSize sizeOfDrawnText(const HostText& text);

}  // namespace vantorel
