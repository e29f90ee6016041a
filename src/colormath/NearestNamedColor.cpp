#include "colormath/NearestNamedColor.h"

#include "color/ChannelConversion.h"
#include "colormath/Differences.h"

#include <vector>

namespace vantorel {
namespace {

CSSColorValue colorOfBytes(std::uint32_t value)
{
    const auto fraction = [value](int shift) { return ((value >> shift) & 0xFF) / 255.0; };
    CSSColorValue color;
    color.components = {fraction(16), fraction(8), fraction(0)};
    return color;
}

const NearestColor& searchOfNamedColors()
{
    static const NearestColor search = [] {
        std::vector<CSSColorValue> colors;
        for (const CSSNamedColor& named : cssNamedColors())
            colors.push_back(colorOfBytes(named.value));
        return NearestColor(colors);
    }();
    return search;
}

}  // namespace

std::optional<NearestNamedColor> nearestNamedColor(const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return std::nullopt;
    const std::uint32_t value = static_cast<std::uint32_t>(nearestByte(rgb->red) << 16) |
                                static_cast<std::uint32_t>(nearestByte(rgb->green) << 8) |
                                static_cast<std::uint32_t>(nearestByte(rgb->blue));
    const CSSNamedColor& named =
        cssNamedColors()[searchOfNamedColors().placeFor(colorOfBytes(value))];
    return NearestNamedColor{named, named.value == value};
}

}  // namespace vantorel
