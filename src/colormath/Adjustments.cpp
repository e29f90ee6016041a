#include "colormath/Adjustments.h"

#include "csscolor/GamutMapping.h"

#include <algorithm>

namespace vantorel {
namespace {

/// A colour in a polar space, with the places of its components there.
class PolarColor {
public:
    PolarColor(const CSSColorValue& color, ColorSpace space)
        : _value(converted(space == ColorSpace::hsl ? mappedIntoSRGB(color) : color, space)),
          _hasHue(!_value.isMissing[placeOf(ColorComponent::hue)])
    {
        // The missing hue of a grey matters here; in the result it is missing only if a component
        // of the colour was.
        if (std::ranges::find(color.isMissing, true) == color.isMissing.end())
            _value.isMissing = {};
    }

    [[nodiscard]] bool hasHue() const { return _hasHue; }
    /// Gives access to a component for a change, after which it counts as present.
    double& component(ColorComponent component)
    {
        const std::size_t place = placeOf(component);
        _value.isMissing[place] = false;
        return _value.components[place];
    }
    [[nodiscard]] const CSSColorValue& value() const { return _value; }

private:
    [[nodiscard]] std::size_t placeOf(ColorComponent component) const
    {
        const auto& all = componentsOf(_value.space);
        return static_cast<std::size_t>(std::ranges::find(all, component) - all.begin());
    }

    CSSColorValue _value;
    bool _hasHue;
};

double fullLightness(ColorSpace space)
{
    return space == ColorSpace::oklch ? 1 : 100;
}

double fullColorfulness(ColorSpace space)
{
    if (space == ColorSpace::oklch) return 0.4;
    return space == ColorSpace::lch ? 150 : 100;
}

}  // namespace

CSSColorValue lightened(const CSSColorValue& color, double amount, ColorSpace space)
{
    PolarColor polar(color, space);
    double& lightness = polar.component(ColorComponent::lightness);
    const double full = fullLightness(space);
    lightness = std::clamp(lightness + amount * full, 0.0, full);
    return polar.value();
}

CSSColorValue saturated(const CSSColorValue& color, double amount, ColorSpace space)
{
    PolarColor polar(color, space);
    if (!polar.hasHue()) return polar.value();
    double& colorfulness = polar.component(ColorComponent::colorfulness);
    const double full = fullColorfulness(space);
    colorfulness = std::max(colorfulness + amount * full, 0.0);
    // Chroma has no upper limit, but a saturation above 100% is outside sRGB.
    if (space == ColorSpace::hsl) colorfulness = std::min(colorfulness, full);
    return polar.value();
}

CSSColorValue rotated(const CSSColorValue& color, double degrees, ColorSpace space)
{
    PolarColor polar(color, space);
    if (!polar.hasHue()) return polar.value();
    double& hue = polar.component(ColorComponent::hue);
    hue = normalizedHue(hue + degrees);
    return polar.value();
}

}  // namespace vantorel
