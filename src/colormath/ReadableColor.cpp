#include "colormath/ReadableColor.h"

#include "csscolor/GamutMapping.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

CSSColorValue oklchOf(const HostColor& color)
{
    CSSColorValue value = converted(cssValueOf(color), ColorSpace::oklch);
    value.isMissing = {};
    return value;
}

HostColor withLightness(CSSColorValue oklch, double lightness)
{
    oklch.components[0] = lightness;
    ColorTriple srgb = mappedIntoSRGB(oklch).components;
    for (double& channel : srgb)
        channel = std::round(channel * 255) / 255;
    return HostColor::colorWithCalibratedRed(srgb[0], srgb[1], srgb[2], oklch.alpha);
}

}  // namespace

std::optional<HostColor> nearestReadableColor(const HostColor& color, double least,
                                              const ContrastOf& contrastOf)
{
    if (color.isPattern()) return std::nullopt;
    if (contrastOf(color) >= least) return color;
    const CSSColorValue oklch = oklchOf(color);
    const auto isEnough = [&](double lightness) {
        return contrastOf(withLightness(oklch, lightness)) >= least;
    };
    const double own = std::clamp(oklch.components[0], 0.0, 1.0);
    std::optional<HostColor> best;
    double leastChange = 2;
    for (const double farthest : {0.0, 1.0}) {
        if (!isEnough(farthest)) continue;
        // The contrast grows with the distance from the colour, except for steps of bytes.
        double tooNear = own;
        double enough = farthest;
        constexpr int steps = 24;
        for (int i = 0; i < steps; ++i) {
            const double middle = (tooNear + enough) / 2;
            (isEnough(middle) ? enough : tooNear) = middle;
        }
        if (std::abs(enough - own) >= leastChange) continue;
        leastChange = std::abs(enough - own);
        best = withLightness(oklch, enough);
    }
    return best;
}

}  // namespace vantorel
