#include "colormath/Scales.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

constexpr double lightest = 0.97;
constexpr double darkest = 0.25;
constexpr std::size_t lastStep = scaleSteps.size() - 1;

double onTheWay(double from, double to, std::size_t step, std::size_t steps)
{
    return from + (to - from) * static_cast<double>(step) / static_cast<double>(steps);
}

/// Returns a colour of another lightness. The chroma falls slowly near the colour, and to 0 at
/// white and black.
CSSColorValue atLightness(CSSColorValue oklch, double lightness)
{
    const double own = oklch.components[0];
    const double end = lightness > own ? 1 : 0;
    const double way = (lightness - own) / (end - own);
    oklch.components[0] = lightness;
    oklch.components[1] *= 1 - way * way;
    return oklch;
}

CSSColorValue withoutMissing(CSSColorValue color)
{
    color.isMissing = {};
    return color;
}

std::vector<CSSColorValue> towards(const CSSColorValue& color, double lightness, std::size_t count)
{
    CSSColorValue end;
    end.space = ColorSpace::oklab;
    end.components = {lightness, 0, 0};
    // The same alpha, so that only the colour changes.
    end.alpha = color.alpha;
    end.isAlphaMissing = color.isAlphaMissing;
    std::vector<CSSColorValue> colors{color};
    for (std::size_t i = 1; i < count; ++i) {
        const double share = static_cast<double>(i) / static_cast<double>(count);
        colors.push_back(mixed(color, end, share, ColorSpace::oklab));
    }
    return colors;
}

}  // namespace

ColorScale colorScale(const CSSColorValue& color)
{
    const CSSColorValue oklch = withoutMissing(converted(color, ColorSpace::oklch));
    const double own = oklch.components[0];
    ColorScale scale;
    const double step = (lightest - darkest) / lastStep;
    scale.ownPlace = static_cast<std::size_t>(
        std::clamp(std::round((lightest - own) / step), 0.0, static_cast<double>(lastStep)));
    for (std::size_t i = 0; i <= lastStep; ++i) {
        if (i < scale.ownPlace) {
            scale.colors[i] = atLightness(oklch, onTheWay(lightest, own, i, scale.ownPlace));
        } else if (i == scale.ownPlace) {
            scale.colors[i] = color;
        } else {
            const std::size_t after = i - scale.ownPlace;
            scale.colors[i] =
                atLightness(oklch, onTheWay(own, darkest, after, lastStep - scale.ownPlace));
        }
    }
    return scale;
}

std::vector<CSSColorValue> tintsOf(const CSSColorValue& color, std::size_t count)
{
    return towards(color, 1, count);
}

std::vector<CSSColorValue> shadesOf(const CSSColorValue& color, std::size_t count)
{
    return towards(color, 0, count);
}

std::vector<CSSColorValue> tonesOf(const CSSColorValue& color, std::size_t count)
{
    return towards(color, converted(color, ColorSpace::oklab).components[0], count);
}

}  // namespace vantorel
