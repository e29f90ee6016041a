#include "colormath/MixSpaces.h"

#include "csscolor/ColorSpaces.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Greys have a little chroma after a conversion, because of rounding.
constexpr double leastChroma = 1e-5;
constexpr double leastPercent = 1e-3;

ColorTriple srgbFromHSV(const ColorTriple& hsv)
{
    const double value = hsv[2] / 100;
    const double saturation = hsv[1] / 100;
    ColorTriple srgb = srgbFromHSL({hsv[0], 100, 50});
    for (double& channel : srgb)
        channel = value * (1 - saturation * (1 - channel));
    return srgb;
}

ColorTriple hsvFromSRGB(const ColorTriple& srgb)
{
    const auto [smallest, largest] = std::ranges::minmax(srgb);
    const double saturation = largest > 0 ? (largest - smallest) / largest : 0;
    return {hwbFromSRGB(srgb)[0], saturation * 100, largest * 100};
}

}  // namespace

ColorTriple srgbFromMixSpace(MixSpace space, const ColorTriple& components)
{
    switch (space) {
        case MixSpace::oklch:
            return srgbFrom(ColorSpace::oklch, components);
        case MixSpace::hsl:
            return srgbFromHSL(components);
        case MixSpace::hsv:
            return srgbFromHSV(components);
        case MixSpace::lab:
            break;
    }
    return srgbFrom(ColorSpace::lab, components);
}

ColorTriple mixSpaceFromSRGB(MixSpace space, const ColorTriple& srgb)
{
    switch (space) {
        case MixSpace::oklch:
            return convertedColor(srgb, ColorSpace::srgb, ColorSpace::oklch);
        case MixSpace::hsl:
            return hslFromSRGB(srgb);
        case MixSpace::hsv:
            return hsvFromSRGB(srgb);
        case MixSpace::lab:
            break;
    }
    return convertedColor(srgb, ColorSpace::srgb, ColorSpace::lab);
}

MixAxes axesOf(MixSpace space)
{
    return space == MixSpace::oklch ? MixAxes{1, 0, 2} : MixAxes{1, 2, 0};
}

MixRange rangeOf(MixSpace space, std::size_t component)
{
    constexpr MixRange hue{0, 360, true};
    constexpr double mostChroma = 0.4;
    constexpr double mostAB = 130;
    switch (space) {
        case MixSpace::oklch:
            if (component == 2) return hue;
            return {0, component == 1 ? mostChroma : 1, false};
        case MixSpace::lab:
            return component == 0 ? MixRange() : MixRange{-mostAB, mostAB, false};
        default:
            return component == 0 ? hue : MixRange();
    }
}

bool isPowerless(MixSpace space, const ColorTriple& components, std::size_t component)
{
    switch (space) {
        case MixSpace::oklch:
            return component == 2 && components[1] <= leastChroma;
        case MixSpace::lab:
            return false;
        default:
            break;
    }
    const bool isEnd = components[2] <= leastPercent ||
                       (space == MixSpace::hsl && components[2] >= 100 - leastPercent);
    if (component == 1) return isEnd;
    return component == 0 && (isEnd || components[1] <= leastPercent);
}

}  // namespace vantorel
