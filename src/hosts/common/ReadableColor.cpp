#include "hosts/common/ReadableColor.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr double darkGround = 0.5;
constexpr double readableLightness = 0.72;

/// Returns the colour of the same hue and saturation (HSL) with another lightness.
HostColor::Components withLightness(HostColor::Components color, double lightness)
{
    const double most = std::max({color.red, color.green, color.blue});
    const double least = std::min({color.red, color.green, color.blue});
    const double before = (most + least) / 2;
    // The largest distance from the middle that channels can have at a lightness.
    const auto reach = [](double l) { return std::min(l, 1 - l); };
    const double stretch = reach(before) > 0 ? reach(lightness) / reach(before) : 0;
    const auto moved = [&](double channel) {
        return std::clamp(lightness + (channel - before) * stretch, 0.0, 1.0);
    };
    return {moved(color.red), moved(color.green), moved(color.blue), color.alpha};
}

}  // namespace

double lightnessOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return 1;
    return (std::max({rgb->red, rgb->green, rgb->blue}) +
            std::min({rgb->red, rgb->green, rgb->blue})) /
           2;
}

bool isDarkGround(const HostColor& ground)
{
    return lightnessOf(ground) < darkGround;
}

HostColor readableTextColor(const HostColor& color, const HostColor& ground,
                            const HostColor& usualText)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb || (rgb->red == 0 && rgb->green == 0 && rgb->blue == 0)) return usualText;
    if (!isDarkGround(ground) || lightnessOf(color) >= readableLightness) return color;
    const auto light = withLightness(*rgb, readableLightness);
    return HostColor::colorWithCalibratedRed(light.red, light.green, light.blue, light.alpha);
}

}  // namespace vantorel
