#include "scales/ScalesModel.h"

#include "colormath/Gradient.h"
#include "colormath/NearestNamedColor.h"
#include "colormath/Scales.h"
#include "csscolor/GamutMapping.h"
#include "text/Decimals.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantorel {
namespace {

constexpr std::size_t colorsOfSeries = 6;

/// The conversions of larger channels would leave the range of numbers.
constexpr double largestChannel = 1e6;

/// Returns the colour with an opacity of 0..1, or `std::nullopt` if nothing can be computed from
/// it.
std::optional<HostColor> usable(const std::optional<HostColor>& color)
{
    const auto rgb = color ? color->calibratedRGB() : std::nullopt;
    if (!rgb || !std::isfinite(rgb->alpha)) return std::nullopt;
    const auto isUsable = [](double channel) { return std::abs(channel) <= largestChannel; };
    if (!isUsable(rgb->red) || !isUsable(rgb->green) || !isUsable(rgb->blue)) return std::nullopt;
    return color->colorWithAlphaComponent(std::clamp(rgb->alpha, 0.0, 1.0));
}

HostColor shownColor(const CSSColorValue& value)
{
    const auto [red, green, blue] = mappedIntoSRGB(value).components;
    return HostColor::colorWithCalibratedRed(red, green, blue, value.alpha);
}

Swatch numbered(std::size_t index, const HostColor& color, bool isOwn)
{
    return {color, decimalText(index + 1), isOwn};
}

/// The first colour is the page's own.
Swatches seriesOf(const HostColor& own, const std::vector<CSSColorValue>& values)
{
    Swatches swatches;
    for (std::size_t i = 0; i < values.size(); ++i)
        swatches.push_back(numbered(i, i == 0 ? own : shownColor(values[i]), i == 0));
    return swatches;
}

}  // namespace

const std::vector<GradientSpace>& gradientSpaces()
{
    static const std::vector<GradientSpace> spaces{
        {"oklch", u"OKLCH", ColorSpace::oklch},
        {"oklch-longer", u"OKLCH", ColorSpace::oklch, HueArc::longer},
        {"oklab", u"Oklab", ColorSpace::oklab},
        {"lab", u"Lab", ColorSpace::lab},
        {"srgb", u"sRGB", ColorSpace::srgb},
        {"srgb-linear", u"sRGB", ColorSpace::srgbLinear},
        {"hsl", u"HSL", ColorSpace::hsl},
        {"hsl-longer", u"HSL", ColorSpace::hsl, HueArc::longer},
    };
    return spaces;
}

void ScalesModel::takeColor(const std::optional<HostColor>& color)
{
    _color = usable(color).value_or(_color);
}

std::string ScalesModel::name() const
{
    const auto nearest = nearestNamedColor(mappedIntoSRGB(_color));
    return nearest ? utf8FromUtf16(nearest->color.name) : "color";
}

Swatches ScalesModel::scale() const
{
    const ColorScale scale = colorScale(cssValueOf(_color));
    Swatches swatches;
    for (std::size_t i = 0; i < scale.colors.size(); ++i) {
        const bool isOwn = i == scale.ownPlace;
        swatches.push_back(
            {isOwn ? _color : shownColor(scale.colors[i]), decimalText(scaleSteps[i]), isOwn});
    }
    return swatches;
}

Swatches ScalesModel::tints() const
{
    return seriesOf(_color, tintsOf(cssValueOf(_color), colorsOfSeries));
}

Swatches ScalesModel::shades() const
{
    return seriesOf(_color, shadesOf(cssValueOf(_color), colorsOfSeries));
}

Swatches ScalesModel::tones() const
{
    return seriesOf(_color, tonesOf(cssValueOf(_color), colorsOfSeries));
}

Swatches ScalesModel::scheme(Scheme scheme) const
{
    const ColorScheme found = schemeOf(scheme, cssValueOf(_color));
    Swatches swatches;
    for (std::size_t i = 0; i < found.colors.size(); ++i) {
        const bool isOwn = i == found.ownPlace;
        swatches.push_back(numbered(i, isOwn ? _color : shownColor(found.colors[i]), isOwn));
    }
    return swatches;
}

Swatches ScalesModel::seenScale(ColorVision vision) const
{
    Swatches swatches = scale();
    for (Swatch& swatch : swatches)
        swatch.color = shownColor(seenWith(vision, cssValueOf(swatch.color)));
    return swatches;
}

HostColor ScalesModel::end() const
{
    if (_end) return *_end;
    return shownColor(schemeOf(Scheme::complement, cssValueOf(_color)).colors.back());
}

void ScalesModel::setEnd(const std::optional<HostColor>& color)
{
    if (!color) {
        _end.reset();
    } else if (const auto end = usable(color)) {
        _end = end;
    }
}

void ScalesModel::setSteps(int steps)
{
    _steps = std::clamp(steps, leastSteps, mostSteps);
}

void ScalesModel::setSpace(std::size_t space)
{
    if (space < gradientSpaces().size()) _space = space;
}

Swatches ScalesModel::gradient() const
{
    const GradientSpace& space = gradientSpaces()[_space];
    const HostColor last = end();
    const std::array stops{cssValueOf(_color), cssValueOf(last)};
    Swatches swatches;
    for (int i = 0; i < _steps; ++i) {
        const double position = static_cast<double>(i) / (_steps - 1);
        HostColor color = _color;
        if (i == _steps - 1) {
            color = last;
        } else if (i > 0) {
            color = shownColor(gradientColor(stops, position, space.space, space.arc));
        }
        swatches.push_back(numbered(static_cast<std::size_t>(i), color, i == 0));
    }
    return swatches;
}

}  // namespace vantorel
