#include "Scenes.h"
#include "hosts/gtk/CairoCanvas.h"

namespace vantorel {

PaintedScene paintWithCairo(const Scene& scene, double ratio)
{
    const int width = static_cast<int>(scene.size.width * ratio);
    const int height = static_cast<int>(scene.size.height * ratio);
    const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    cairo_surface_set_device_scale(surface.get(), ratio, ratio);
    const CairoContext cairo(cairo_create(surface.get()));
    cairo_set_source_rgb(cairo.get(), 1, 1, 1);
    cairo_paint(cairo.get());
    CairoCanvas canvas(cairo.get(), {0, 0, scene.size.width, scene.size.height}, ratio);
    scene.paint(canvas);
    cairo_surface_flush(surface.get());
    PaintedScene painted{width, height, {}};
    const unsigned char* bytes = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int y = 0; y < height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(bytes + y * stride);
        painted.pixels.insert(painted.pixels.end(), row, row + width);
    }
    return painted;
}

}  // namespace vantorel
