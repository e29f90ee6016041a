#include "csscolor/Contrast.h"

#include "csscolor/ColorConversions.h"

#include <algorithm>

namespace vantorel {
namespace {

std::optional<HostColor::Components> withinRange(const HostColor& color)
{
    auto components = color.calibratedRGB();
    if (!components) return std::nullopt;
    for (double* fraction :
         {&components->red, &components->green, &components->blue, &components->alpha})
        *fraction = *fraction > 0 ? std::min(*fraction, 1.0) : 0;
    return components;
}

}  // namespace

std::optional<double> relativeLuminance(const HostColor& color)
{
    const auto components = withinRange(color);
    if (!components) return std::nullopt;
    return 0.2126 * linearFromSRGB(components->red) + 0.7152 * linearFromSRGB(components->green) +
           0.0722 * linearFromSRGB(components->blue);
}

std::optional<HostColor> composedOver(const HostColor& foreground, const HostColor& background)
{
    const auto front = withinRange(foreground);
    const auto back = withinRange(background);
    if (!front || !back) return std::nullopt;
    const double alpha = front->alpha + back->alpha * (1 - front->alpha);
    if (!(alpha > 0)) return HostColor::colorWithCalibratedRed(0, 0, 0, 0);
    const double share = front->alpha / alpha;
    const auto mixed = [share](double over, double under) {
        return over * share + under * (1 - share);
    };
    return HostColor::colorWithCalibratedRed(mixed(front->red, back->red),
                                             mixed(front->green, back->green),
                                             mixed(front->blue, back->blue), alpha);
}

std::optional<double> contrastRatio(const HostColor& foreground, const HostColor& background)
{
    const auto back = composedOver(background, HostColor::whiteColor());
    if (!back) return std::nullopt;
    const auto front = composedOver(foreground, *back);
    if (!front) return std::nullopt;
    const double first = *relativeLuminance(*front);
    const double second = *relativeLuminance(*back);
    constexpr double flare = 0.05;
    return (std::max(first, second) + flare) / (std::min(first, second) + flare);
}

ContrastVerdicts contrastVerdicts(double ratio)
{
    constexpr double enhanced = 7;
    constexpr double minimum = 4.5;
    constexpr double large = 3;
    return {ratio >= minimum, ratio >= enhanced, ratio >= large, ratio >= minimum, ratio >= large};
}

}  // namespace vantorel
