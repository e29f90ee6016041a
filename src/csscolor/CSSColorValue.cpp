#include "csscolor/CSSColorValue.h"

#include "csscolor/CSSTokenizer.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Returns the degrees from the first hue to the second along an arc.
double alongArc(double first, double second, HueArc arc)
{
    constexpr double fullTurn = 360;
    const double difference = normalizedHue(second) - normalizedHue(first);
    switch (arc) {
        case HueArc::shorter:
            if (difference > fullTurn / 2) return difference - fullTurn;
            if (difference < -fullTurn / 2) return difference + fullTurn;
            break;
        case HueArc::longer:
            if (difference > 0 && difference < fullTurn / 2) return difference - fullTurn;
            if (difference > -fullTurn / 2 && difference <= 0) return difference + fullTurn;
            break;
        case HueArc::increasing:
            if (difference < 0) return difference + fullTurn;
            break;
        case HueArc::decreasing:
            if (difference > 0) return difference - fullTurn;
            break;
    }
    return difference;
}

double between(double first, double second, double share)
{
    return first * (1 - share) + second * share;
}

/// Keeps what is computed within the limits of what can be written, so that the next conversion is
/// finite, too.
double limited(double component)
{
    return std::clamp(component, -largestCSSNumber, largestCSSNumber);
}

/// A missing value is taken from the other colour. Returns false if both are missing.
bool fillIn(double& first, bool isFirstMissing, double& second, bool isSecondMissing)
{
    if (isFirstMissing) first = second;
    if (isSecondMissing) second = first;
    return !(isFirstMissing && isSecondMissing);
}

/// Returns which components of a colour stay missing in another space.
std::array<bool, 3> missingAfterConversion(const CSSColorValue& color, ColorSpace space)
{
    const auto& from = componentsOf(color.space);
    const auto& to = componentsOf(space);
    const auto isMissing = [&](ColorComponent component) {
        const auto found = std::ranges::find(from, component);
        return found != from.end() &&
               color.isMissing[static_cast<std::size_t>(found - from.begin())];
    };
    std::array<bool, 3> missing{};
    std::ranges::transform(to, missing.begin(), isMissing);
    // The two coordinates of chromaticity are analogous together.
    using enum ColorComponent;
    const bool hasNoChromaticity =
        (isMissing(a) && isMissing(b)) || (isMissing(colorfulness) && isMissing(hue));
    const bool isAboutChromaticity = to[0] == lightness;
    if (hasNoChromaticity && isAboutChromaticity) missing[1] = missing[2] = true;
    return missing;
}

}  // namespace

CSSColorValue cssValueOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    CSSColorValue value;
    value.components = {rgb.red, rgb.green, rgb.blue};
    value.alpha = rgb.alpha;
    return value;
}

CSSColorValue converted(const CSSColorValue& color, ColorSpace space)
{
    if (color.space == space) return color;
    CSSColorValue result = color;
    result.space = space;
    result.components = convertedColor(color.components, color.space, space);
    result.isMissing = missingAfterConversion(color, space);
    const auto hue = placeOfHue(space);
    if (hue && isHuePowerless(space, result.components)) result.isMissing[*hue] = true;
    for (std::size_t i = 0; i < result.components.size(); ++i)
        result.components[i] = result.isMissing[i] ? 0 : limited(result.components[i]);
    return result;
}

std::optional<HueArc> hueArcNamed(std::u16string_view name)
{
    if (name == u"shorter") return HueArc::shorter;
    if (name == u"longer") return HueArc::longer;
    if (name == u"increasing") return HueArc::increasing;
    if (name == u"decreasing") return HueArc::decreasing;
    return std::nullopt;
}

CSSColorValue mixed(const CSSColorValue& first, const CSSColorValue& second, double share,
                    ColorSpace space, HueArc arc)
{
    CSSColorValue from = converted(first, space);
    CSSColorValue to = converted(second, space);
    CSSColorValue result;
    result.space = space;
    result.isAlphaMissing = !fillIn(from.alpha, from.isAlphaMissing, to.alpha, to.isAlphaMissing);
    result.alpha = result.isAlphaMissing ? 0 : between(from.alpha, to.alpha, share);
    // With an alpha that is missing in both colours, nothing is weighted.
    const double fromWeight = result.isAlphaMissing ? 1 : from.alpha;
    const double toWeight = result.isAlphaMissing ? 1 : to.alpha;
    // What has no alpha at all stays as it is weighted: black.
    const double weight = result.alpha > 0 ? result.alpha : 1;
    const auto hue = placeOfHue(space);
    for (std::size_t i = 0; i < result.components.size(); ++i) {
        double start = from.components[i];
        double end = to.components[i];
        if (!fillIn(start, from.isMissing[i], end, to.isMissing[i])) {
            result.isMissing[i] = true;
        } else if (i == hue) {
            // Hues have no amount that an alpha could reduce.
            start = normalizedHue(start);
            result.components[i] = normalizedHue(start + alongArc(start, end, arc) * share);
        } else {
            result.components[i] =
                limited(between(start * fromWeight, end * toWeight, share) / weight);
        }
    }
    return result;
}

}  // namespace vantorel
