#include "hosts/gtk/SvgPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>

namespace vantorel {
namespace {

std::string withColor(std::string svg, const HostColor& color)
{
    constexpr std::string_view placeholder = "currentColor";
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    const auto byte = [](double channel) {
        return static_cast<unsigned>(channel > 0 ? std::lround(std::min(channel, 1.0) * 255) : 0);
    };
    std::array<char, 8> code{};
    static_cast<void>(std::snprintf(code.data(), code.size(), "#%02x%02x%02x", byte(rgb.red),
                                    byte(rgb.green), byte(rgb.blue)));
    for (auto at = svg.find(placeholder); at != std::string::npos; at = svg.find(placeholder, at)) {
        svg.replace(at, placeholder.size(), code.data());
    }
    return svg;
}

CairoSurface surfaceOfPixbuf(GdkPixbuf* pixbuf)
{
    CairoSurface surface(cairo_image_surface_create(
        CAIRO_FORMAT_ARGB32, gdk_pixbuf_get_width(pixbuf), gdk_pixbuf_get_height(pixbuf)));
    const CairoContext cairo(cairo_create(surface.get()));
    gdk_cairo_set_source_pixbuf(cairo.get(), pixbuf, 0, 0);
    cairo_paint(cairo.get());
    return surface;
}

}  // namespace

GtkReference<GdkPixbuf> pictureOfSvg(const std::string& svg, int pixels, const HostColor& color)
{
    const std::string colored = withColor(svg, color);
    const auto stream = GtkReference<GInputStream>::adopt(g_memory_input_stream_new_from_data(
        colored.data(), static_cast<gssize>(colored.size()), nullptr));
    return GtkReference<GdkPixbuf>::adopt(
        gdk_pixbuf_new_from_stream_at_scale(stream.get(), pixels, pixels, TRUE, nullptr, nullptr));
}

bool SvgPicture::paint(cairo_t* cairo, double size, double devicePixels, const HostColor& color)
{
    const int pixels = std::max(1, static_cast<int>(std::lround(size * devicePixels)));
    if (pixels != _renderedPixels || color != _renderedColor) {
        const auto pixbuf = pictureOfSvg(_svg, pixels, color);
        _rendered = pixbuf ? surfaceOfPixbuf(pixbuf.get()) : nullptr;
        _renderedPixels = pixels;
        _renderedColor = color;
    }
    if (!_rendered) return false;
    cairo_save(cairo);
    cairo_scale(cairo, 1 / devicePixels, 1 / devicePixels);
    cairo_set_source_surface(cairo, _rendered.get(), 0, 0);
    cairo_paint(cairo);
    cairo_restore(cairo);
    return true;
}

}  // namespace vantorel
