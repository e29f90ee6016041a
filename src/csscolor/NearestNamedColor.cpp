#include "csscolor/NearestNamedColor.h"

#include "color/ChannelConversion.h"
#include "csscolor/ColorConversions.h"

#include <limits>
#include <vector>

namespace vantorel {
namespace {

ColorTriple oklabFromBytes(std::uint32_t value)
{
    const auto fraction = [value](int shift) { return ((value >> shift) & 0xFF) / 255.0; };
    return oklabFromSRGB({fraction(16), fraction(8), fraction(0)});
}

/// The named colours in Oklab, in the order of `cssNamedColors`.
const std::vector<ColorTriple>& namedColorsInOklab()
{
    static const std::vector<ColorTriple> colors = [] {
        std::vector<ColorTriple> converted;
        for (const CSSNamedColor& named : cssNamedColors())
            converted.push_back(oklabFromBytes(named.value));
        return converted;
    }();
    return colors;
}

double squaredDistance(const ColorTriple& a, const ColorTriple& b)
{
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    return sum;
}

}  // namespace

std::optional<NearestNamedColor> nearestNamedColor(const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return std::nullopt;
    const std::uint32_t value = static_cast<std::uint32_t>(nearestByte(rgb->red) << 16) |
                                static_cast<std::uint32_t>(nearestByte(rgb->green) << 8) |
                                static_cast<std::uint32_t>(nearestByte(rgb->blue));
    const ColorTriple wanted = oklabFromBytes(value);
    std::size_t nearest = 0;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < namedColorsInOklab().size(); ++i) {
        const double distance = squaredDistance(wanted, namedColorsInOklab()[i]);
        if (distance >= least) continue;
        nearest = i;
        least = distance;
    }
    const CSSNamedColor& named = cssNamedColors()[nearest];
    return NearestNamedColor{named, named.value == value};
}

}  // namespace vantorel
