#include "hosts/gtk/CairoCanvas.h"

#include "hosts/gtk/GtkStyles.h"
#include "hosts/gtk/GtkTextScale.h"
#include "hosts/gtk/GtkTexts.h"
#include "hosts/gtk/GtkTranslations.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

using Kind = HostBezierPath::ElementKind;

using Layout = GtkReference<PangoLayout>;

/// A trailing line break does not add a line.
Layout layoutOf(const Layout& layout, const HostText& text)
{
    std::string shown = gtkText(shownText(text));
    if (shown.size() > 1 && shown.back() == '\n') shown.pop_back();
    pango_layout_set_text(layout.get(), shown.data(), static_cast<int>(shown.size()));
    const PangoFont font = gtkFontOfSize(text.pointSize);
    if (text.isBold) pango_font_description_set_weight(font.get(), PANGO_WEIGHT_BOLD);
    pango_layout_set_font_description(layout.get(), font.get());
    return layout;
}

}  // namespace

CairoCanvas::CairoCanvas(cairo_t* cairo, HostRect bounds, double devicePixels,
                         const ThemeBasis& theme)
    : _cairo(cairo),
      _bounds(bounds),
      _scale(gtkTextScale()),
      _devicePixels(devicePixels),
      _theme(theme)
{
    cairo_clip_extents(cairo, &_dirty.left, &_dirty.top, &_dirty.right, &_dirty.bottom);
    cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_WINDING);
    cairo_set_line_join(cairo, CAIRO_LINE_JOIN_MITER);
}

PixelPoint CairoCanvas::placed(HostPoint point) const
{
    return pixelPoint(point, _bounds, _scale);
}

void CairoCanvas::tracePath(const HostBezierPath& path)
{
    cairo_new_path(_cairo);
    for (const auto& element : path.elements()) {
        const PixelPoint at = placed(element.point);
        switch (element.kind) {
            case Kind::moveTo:
                cairo_move_to(_cairo, at.x, at.y);
                break;
            case Kind::lineTo:
                cairo_line_to(_cairo, at.x, at.y);
                break;
            case Kind::close:
                cairo_close_path(_cairo);
                break;
        }
    }
}

/// The edges must be on whole pixels of the device.
void CairoCanvas::fillBar(const PaintedBar& bar)
{
    if (bar.right <= _dirty.left || bar.left >= _dirty.right || bar.bottom <= _dirty.top ||
        bar.top >= _dirty.bottom) {
        return;
    }
    cairo_rectangle(_cairo, bar.left, bar.top, bar.width(), bar.height());
    cairo_fill(_cairo);
}

PaintedBar CairoCanvas::placed(HostRect rect) const
{
    const PixelPoint topLeft = placed(HostPoint{rect.x, rect.maxY()});
    const PixelPoint bottomRight = placed(HostPoint{rect.maxX(), rect.y});
    return {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
}

PaintedBar CairoCanvas::onPixels(HostRect rect) const
{
    const PaintedBar bar = placed(rect);
    const auto edge = [this](double x) { return std::round(x * _devicePixels) / _devicePixels; };
    return {edge(bar.left), edge(bar.top), edge(bar.right), edge(bar.bottom)};
}

void CairoCanvas::fill(const HostBezierPath& path, const HostColor& color)
{
    if (path.isEmpty() || !setCairoColor(_cairo, color)) return;
    cairo_set_antialias(_cairo, CAIRO_ANTIALIAS_NONE);
    if (const auto rect = uprightRect(path)) {
        fillBar(onPixels(*rect));
        return;
    }
    tracePath(path);
    cairo_fill(_cairo);
}

/// Strokes an open line through the middle of pixels of the device. Horizontal and vertical pieces
/// are filled bars.
void CairoCanvas::strokeOpenLine(const HostBezierPath& path)
{
    const double width = path.lineWidth() * _scale;
    const double half = halfStrokeWidth(width, _devicePixels);
    PixelPoint last;
    for (const auto& element : path.elements()) {
        const PixelPoint exact = placed(element.point);
        const PixelPoint point{middleOfPixel(exact.x, _devicePixels),
                               middleOfPixel(exact.y, _devicePixels)};
        if (element.kind == Kind::lineTo) {
            if (point.x == last.x || point.y == last.y) {
                cairo_set_antialias(_cairo, CAIRO_ANTIALIAS_NONE);
                fillBar({std::min(point.x, last.x) - half, std::min(point.y, last.y) - half,
                         std::max(point.x, last.x) + half, std::max(point.y, last.y) + half});
            } else {
                cairo_set_antialias(_cairo, CAIRO_ANTIALIAS_DEFAULT);
                cairo_set_line_width(_cairo, width);
                cairo_move_to(_cairo, last.x, last.y);
                cairo_line_to(_cairo, point.x, point.y);
                cairo_stroke(_cairo);
            }
        }
        last = point;
    }
}

void CairoCanvas::stroke(const HostBezierPath& path, const HostColor& color)
{
    if (path.isEmpty() || !setCairoColor(_cairo, color)) return;
    if (const auto rect = uprightRect(path)) {
        cairo_set_antialias(_cairo, CAIRO_ANTIALIAS_NONE);
        for (const PaintedBar& bar :
             barsOfStroke(placed(*rect), path.lineWidth() * _scale, _devicePixels)) {
            fillBar(bar);
        }
        return;
    }
    // The pieces of a line overlap where they meet, which would show in a translucent colour.
    if (color.alphaComponent() >= 1 && isOpenLine(path)) {
        strokeOpenLine(path);
        return;
    }
    cairo_set_antialias(_cairo, CAIRO_ANTIALIAS_DEFAULT);
    cairo_set_line_width(_cairo, path.lineWidth() * _scale);
    tracePath(path);
    cairo_stroke(_cairo);
}

void CairoCanvas::drawText(const HostText& text, HostPoint at)
{
    if (!setCairoColor(_cairo, text.color)) return;
    const Layout layout = layoutOf(Layout::adopt(pango_cairo_create_layout(_cairo)), text);
    int height = 0;
    pango_layout_get_pixel_size(layout.get(), nullptr, &height);
    const PixelPoint lowerLeft = placed(at);
    cairo_move_to(_cairo, lowerLeft.x, lowerLeft.y - height);
    pango_cairo_show_layout(_cairo, layout.get());
}

HostPixelSize CairoCanvas::pixelSizeOf(HostRect rect) const
{
    const PaintedBar place = onPixels(rect);
    const auto pixels = [this](double length) {
        return std::max(0, static_cast<int>(std::lround(length * _devicePixels)));
    };
    return {pixels(place.width()), pixels(place.height())};
}

void CairoCanvas::drawPixels(const HostPixels& pixels, HostRect rect)
{
    const PaintedBar place = onPixels(rect);
    if (pixels.isEmpty() || place.width() <= 0 || place.height() <= 0) return;
    // Cairo only reads what is painted.
    auto* bytes = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(pixels.row(0)));
    const CairoSurface picture(cairo_image_surface_create_for_data(
        bytes, CAIRO_FORMAT_ARGB32, pixels.width(), pixels.height(),
        cairo_format_stride_for_width(CAIRO_FORMAT_ARGB32, pixels.width())));
    cairo_save(_cairo);
    cairo_set_antialias(_cairo, CAIRO_ANTIALIAS_NONE);
    cairo_rectangle(_cairo, place.left, place.top, place.width(), place.height());
    cairo_clip(_cairo);
    cairo_translate(_cairo, place.left, place.top);
    cairo_scale(_cairo, place.width() / pixels.width(), place.height() / pixels.height());
    cairo_set_source_surface(_cairo, picture.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(_cairo), CAIRO_FILTER_NEAREST);
    cairo_pattern_set_extend(cairo_get_source(_cairo), CAIRO_EXTEND_PAD);
    cairo_paint(_cairo);
    cairo_restore(_cairo);
    // Whatever still refers to the picture gets a copy.
    cairo_surface_finish(picture.get());
}

HostSize sizeInPixels(const HostImage& image)
{
    return {image.size.width * gtkTextScale(), image.size.height * gtkTextScale()};
}

void paintImage(cairo_t* cairo, const HostImage& image, double devicePixels)
{
    cairo_save(cairo);
    cairo_rectangle(cairo, 0, 0, sizeInPixels(image).width, sizeInPixels(image).height);
    cairo_clip(cairo);
    cairo_push_group(cairo);
    CairoCanvas canvas(cairo, {0, 0, image.size.width, image.size.height}, devicePixels);
    image.paint(canvas);
    cairo_pop_group_to_source(cairo);
    cairo_paint_with_alpha(cairo, image.fraction);
    cairo_restore(cairo);
}

CairoSurface surfaceOfImage(const HostImage& image, double devicePixels)
{
    const HostSize size = sizeInPixels(image);
    const auto pixels = [devicePixels](double length) {
        return std::max(1, static_cast<int>(std::ceil(length * devicePixels)));
    };
    CairoSurface surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels(size.width), pixels(size.height)));
    cairo_surface_set_device_scale(surface.get(), devicePixels, devicePixels);
    const CairoContext cairo(cairo_create(surface.get()));
    paintImage(cairo.get(), image, devicePixels);
    return surface;
}

HostSize sizeOfDrawnText(const HostText& text)
{
    // The context of a painter is at 96 dots per inch and has no use for the screen's.
    const auto context = GtkReference<PangoContext>::adopt(
        pango_font_map_create_context(pango_cairo_font_map_get_default()));
    const Layout layout = layoutOf(Layout::adopt(pango_layout_new(context.get())), text);
    int width = 0;
    int height = 0;
    pango_layout_get_pixel_size(layout.get(), &width, &height);
    return {width / gtkTextScale(), height / gtkTextScale()};
}

}  // namespace vantorel
