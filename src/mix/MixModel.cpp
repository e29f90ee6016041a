#include "mix/MixModel.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

/// Hosts whose toolkits have 16 bits per channel round colours by half a step.
constexpr double hostRounding = 1.0 / 65535;

/// The conversions of larger channels would leave the range of numbers.
constexpr double largestChannel = 1e6;

bool isNear(const ColorTriple& a, const ColorTriple& b)
{
    return std::ranges::equal(a, b,
                              [](double x, double y) { return std::abs(x - y) <= hostRounding; });
}

ColorTriple moved(MixSpace space, ColorTriple components)
{
    for (std::size_t i = 0; i < components.size(); ++i) {
        const MixRange range = rangeOf(space, i);
        if (range.isHue) {
            components[i] = normalizedHue(components[i]);
        } else if (space == MixSpace::hsl || space == MixSpace::hsv) {
            components[i] = std::clamp(components[i], range.minimum, range.maximum);
        }
    }
    return components;
}

}  // namespace

void MixModel::setSpace(MixSpace space)
{
    _last[static_cast<std::size_t>(_space)] = _components;
    _space = space;
    _components = _last[static_cast<std::size_t>(_space)];
    readComponents();
}

HostColor MixModel::color() const
{
    return HostColor::colorWithCalibratedRed(_srgb[0], _srgb[1], _srgb[2], _alpha);
}

void MixModel::takeColor(const std::optional<HostColor>& color)
{
    const auto rgb = color ? color->calibratedRGB() : std::nullopt;
    if (!rgb) return;
    const ColorTriple srgb{rgb->red, rgb->green, rgb->blue};
    const auto isUsable = [](double channel) { return std::abs(channel) <= largestChannel; };
    if (!std::ranges::all_of(srgb, isUsable) || !std::isfinite(rgb->alpha)) return;
    _alpha = std::clamp(rgb->alpha, 0.0, 1.0);
    if (isNear(srgb, _srgb)) return;
    _srgb = srgb;
    readComponents();
}

void MixModel::readComponents()
{
    const ColorTriple before = _components;
    _components = mixSpaceFromSRGB(_space, _srgb);
    const ColorTriple read = _components;
    for (std::size_t i = 0; i < read.size(); ++i)
        if (isPowerless(_space, read, i)) _components[i] = before[i];
}

void MixModel::setComponent(std::size_t component, double value)
{
    ColorTriple components = _components;
    components[component] = value;
    setComponents(components);
}

void MixModel::setComponents(const ColorTriple& components)
{
    _components = moved(_space, components);
    _srgb = srgbFromMixSpace(_space, _components);
}

void MixModel::setAlpha(double alpha)
{
    _alpha = std::clamp(alpha, 0.0, 1.0);
}

ColorTriple MixModel::srgbWith(std::size_t component, double value) const
{
    ColorTriple components = moved(_space, _components);
    components[component] = value;
    return srgbFromMixSpace(_space, components);
}

}  // namespace vantorel
