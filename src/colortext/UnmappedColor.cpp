#include "colortext/UnmappedColor.h"

namespace vantorel {

HostColor unmappedColor(const CSSColor& color)
{
    if (!color.wasOutsideSRGB) return color.color;
    const auto [red, green, blue] = srgbFrom(color.value.space, color.value.components);
    return HostColor::colorWithCalibratedRed(red, green, blue, color.value.alpha);
}

}  // namespace vantorel
