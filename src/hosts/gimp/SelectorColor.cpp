#include "hosts/gimp/SelectorColor.h"

#include <algorithm>

namespace vantorel {
namespace {

double clipped(double channel)
{
    // Also for what is not a number.
    return channel > 0 ? std::min(channel, 1.0) : 0.0;
}

HostColor clippedColor(double red, double green, double blue, double alpha)
{
    return HostColor::colorWithCalibratedRed(clipped(red), clipped(green), clipped(blue),
                                             clipped(alpha));
}

}  // namespace

#if GIMP_MAJOR_VERSION >= 3

namespace {

const Babl* formatOfPixels()
{
    return babl_format("R'G'B'A double");
}

}  // namespace

HostColor colorOfSelector(GimpColorSelector* selector)
{
    double pixel[4] = {};
    GeglColor* color = gimp_color_selector_get_color(selector);
    gegl_color_get_pixel(color, formatOfPixels(), pixel);
    g_object_unref(color);
    return clippedColor(pixel[0], pixel[1], pixel[2], pixel[3]);
}

void setColorOfSelector(GimpColorSelector* selector, const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    const double pixel[4] = {rgb.red, rgb.green, rgb.blue, rgb.alpha};
    GeglColor* set = gegl_color_new(nullptr);
    gegl_color_set_pixel(set, formatOfPixels(), pixel);
    gimp_color_selector_set_color(selector, set);
    g_object_unref(set);
}

void followColorOfSelector(GtkConnections& signals, GimpColorSelector* selector,
                           const std::function<void()>& reaction)
{
    signals.connect<void, GeglColor*>(selector, "color-changed",
                                      [reaction](GeglColor*) { reaction(); });
}

#else

HostColor colorOfSelector(GimpColorSelector* selector)
{
    GimpRGB rgb = {};
    GimpHSV hsv = {};
    gimp_color_selector_get_color(selector, &rgb, &hsv);
    return clippedColor(rgb.r, rgb.g, rgb.b, rgb.a);
}

void setColorOfSelector(GimpColorSelector* selector, const HostColor& color)
{
    const auto components = color.calibratedRGB().value_or(HostColor::Components{});
    const GimpRGB rgb = {components.red, components.green, components.blue, components.alpha};
    GimpHSV hsv = {};
    gimp_rgb_to_hsv(&rgb, &hsv);
    gimp_color_selector_set_color(selector, &rgb, &hsv);
}

void followColorOfSelector(GtkConnections& signals, GimpColorSelector* selector,
                           const std::function<void()>& reaction)
{
    signals.connect<void, const GimpRGB*, const GimpHSV*>(
        selector, "color-changed", [reaction](const GimpRGB*, const GimpHSV*) { reaction(); });
}

#endif

}  // namespace vantorel
