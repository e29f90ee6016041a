#include "embedding/PageColor.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

bool isWithin(double distance, double a, double b)
{
    // Differences of a few units in the last place are no differences.
    constexpr double tolerance = 1e-9;
    return std::abs(a - b) <= distance + tolerance;
}

/// Whether a dialog that changes channels by up to `rounding` can have made `b` from `a`.
bool isSameColor(const HostColor& a, const HostColor& b, double rounding)
{
    const auto first = a.calibratedRGB();
    const auto second = b.calibratedRGB();
    if (!first || !second) return first.has_value() == second.has_value();
    const auto stored = [](double channel) { return std::clamp(channel, 0.0, 1.0); };
    return isWithin(rounding, stored(first->red), stored(second->red)) &&
           isWithin(rounding, stored(first->green), stored(second->green)) &&
           isWithin(rounding, stored(first->blue), stored(second->blue)) &&
           isWithin(rounding, stored(first->alpha), stored(second->alpha));
}

}  // namespace

bool PageColor::setByDialog(const HostColor& color)
{
    if (isSameColor(color, _dialogsColor, _rounding)) return false;
    // What happened last counts: a colour of the page that the dialog has not got yet is older.
    _isPending = false;
    _color = _dialogsColor = color;
    _isFinal = true;
    return true;
}

bool PageColor::setByPage(const std::optional<HostColor>& color)
{
    if (!color || !color->calibratedRGB()) return false;
    _color = _takesOpacity ? *color : color->colorWithAlphaComponent(_color.alphaComponent());
    _isPending = true;
    return true;
}

void PageColor::stepsEnd()
{
    _isInSteps = false;
    // The end is reported even if the colour does not change any more.
    _isPending = true;
}

std::optional<HostColor> PageColor::takeForDialog(bool isFinal)
{
    if (!std::exchange(_isPending, false)) return std::nullopt;
    const bool isKnown = _dialogsColor == _color && (_isFinal || !isFinal);
    if (isKnown) return std::nullopt;
    _dialogsColor = _color;
    _isFinal = isFinal;
    return _color;
}

}  // namespace vantorel
