#pragma once

#include "host/HostColor.h"
#include "hosts/gtk/GtkReferences.h"

#include <string>

namespace vantorel {

/// Renders an SVG picture as a square; `currentColor` becomes the given colour. Returns a null
/// reference if the desktop cannot read SVG.
[[nodiscard]] GtkReference<GdkPixbuf> pictureOfSvg(const std::string& svg, int pixels,
                                                   const HostColor& color);

/// An SVG picture, in which `currentColor` is the text colour. It is rendered for each size and
/// colour by the desktop's own loader of pictures.
class SvgPicture {
public:
    explicit SvgPicture(std::string svg) : _svg(std::move(svg)) {}

    [[nodiscard]] bool isEmpty() const { return _svg.empty(); }
    /// Paints the picture with its upper left corner at (0, 0) and this many pixels of GTK high and
    /// wide. Returns false if the desktop cannot read SVG.
    bool paint(cairo_t* cairo, double size, double devicePixels, const HostColor& color);

private:
    std::string _svg;
    CairoSurface _rendered;
    int _renderedPixels = 0;
    HostColor _renderedColor = HostColor::patternColor();
};

}  // namespace vantorel
