#include "color/QTXHexColorSpec.h"

#include "color/ChannelConversion.h"
#include "host/HostEvent.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <bit>

namespace vantorel {
namespace {

constexpr double conversionBias = 0.00005;
constexpr std::uint64_t closenessLimit = 16;

/// Returns the number of grid steps that a channel has reached.
std::uint64_t componentOfChannel(double channel)
{
    return truncatedUnsigned((channel + conversionBias) * 255);
}

double fractionOfComponent(std::uint64_t component)
{
    return static_cast<double>(component) / 255;
}

std::optional<HostColor::Components> rgbOf(const std::optional<HostColor>& color)
{
    return color ? color->calibratedRGB() : std::nullopt;
}

bool equalsChannel(std::uint64_t component, double channel)
{
    // A channel a whole step or more below zero is not 0, although its component is stored as 0.
    return !(channel * 255 <= -1) && component == truncatedUnsigned(channel * 255);
}

bool closeToChannel(std::uint64_t component, double channel)
{
    return distanceBetween(component, truncatedSigned(channel * 255)) <= closenessLimit;
}

bool differsByLess(std::uint64_t a, std::uint64_t b, std::int64_t limit)
{
    const std::uint64_t difference = a > b ? a - b : b - a;
    return limit > 0 && difference < static_cast<std::uint64_t>(limit);
}

/// Formats a component like printf's "%02x".
std::u16string twoLowerHexDigits(std::uint64_t component)
{
    const auto value = static_cast<std::uint32_t>(component);
    const auto count = static_cast<std::size_t>(std::bit_width(value) + 3) / 4;
    std::u16string digits;
    appendHexDigits(digits, value, std::max<std::size_t>(count, 2), HexCase::lower);
    return digits;
}

}  // namespace

void QTXHexColorSpec::setHexRed(std::uint64_t red, std::uint64_t green, std::uint64_t blue)
{
    setRedHexComp(red);
    setGreenHexComp(green);
    setBlueHexComp(blue);
}

std::uint64_t QTXHexColorSpec::componentWithIndex(std::int64_t componentIndex) const
{
    switch (componentIndex) {
        case 0:
            return _redHexComp;
        case 1:
            return _greenHexComp;
        case 2:
            return _blueHexComp;
        default:
            return 0;
    }
}

void QTXHexColorSpec::setComponent(std::uint64_t component, std::int64_t componentIndex)
{
    switch (componentIndex) {
        case 0:
            setRedHexComp(component);
            break;
        case 1:
            setGreenHexComp(component);
            break;
        case 2:
            setBlueHexComp(component);
            break;
        default:
            break;
    }
}

std::uint64_t QTXHexColorSpec::colorSubComponentWithComponentIndex(std::int64_t componentIndex,
                                                                   std::int64_t digitIndex) const
{
    const std::uint64_t component = componentWithIndex(componentIndex);
    return (digitIndex == 1 ? component >> 4 : component) & 15;
}

void QTXHexColorSpec::setColorSubComponent(std::uint64_t value, std::int64_t componentIndex,
                                           std::int64_t digitIndex)
{
    const std::uint64_t component = componentWithIndex(componentIndex);
    const std::uint64_t digit = value & 15;
    setComponent(digitIndex != 0 ? digit * 16 + (component & 0x0F) : (component & 0xF0) + digit,
                 componentIndex);
}

void QTXHexColorSpec::setColorSubComponent(std::uint64_t value, std::int64_t componentIndex,
                                           std::int64_t digitIndex, std::uint64_t modifierFlags)
{
    if (digitIndex != 0 && (modifierFlags & shiftModifierFlag) != 0) {
        setComponent((value & 15) * 17, componentIndex);
    } else {
        setColorSubComponent(value, componentIndex, digitIndex);
    }
}

void QTXHexColorSpec::setColorHexColorSpec(const std::optional<HostColor>& color)
{
    setHexRed(0, 0, 0);
    const auto rgb = rgbOf(color);
    if (!rgb) return;
    setHexRed(componentOfChannel(rgb->red), componentOfChannel(rgb->green),
              componentOfChannel(rgb->blue));
    _redRemainder = rgb->red - fractionOfComponent(_redHexComp);
    _greenRemainder = rgb->green - fractionOfComponent(_greenHexComp);
    _blueRemainder = rgb->blue - fractionOfComponent(_blueHexComp);
}

HostColor QTXHexColorSpec::colorHexColorSpec() const
{
    return HostColor::colorWithCalibratedRed(fractionOfComponent(_redHexComp),
                                             fractionOfComponent(_greenHexComp),
                                             fractionOfComponent(_blueHexComp), 1.0);
}

void QTXHexColorSpec::loadWithHexColorSpec(const QTXHexColorSpec* other)
{
    if (other != nullptr) {
        *this = *other;
    } else {
        *this = QTXHexColorSpec();
        setAlphaComp(1.0);
    }
}

void QTXHexColorSpec::clearRemainders()
{
    _redRemainder = _greenRemainder = _blueRemainder = 0;
}

bool QTXHexColorSpec::isExact() const
{
    return _redRemainder < exactnessLimit && _greenRemainder < exactnessLimit &&
           _blueRemainder < exactnessLimit;
}

bool QTXHexColorSpec::isEqualToColor(const std::optional<HostColor>& color) const
{
    const auto rgb = rgbOf(color);
    return rgb && equalsChannel(_redHexComp, rgb->red) &&
           equalsChannel(_greenHexComp, rgb->green) && equalsChannel(_blueHexComp, rgb->blue);
}

bool QTXHexColorSpec::isCloseToColor(const std::optional<HostColor>& color) const
{
    const auto rgb = rgbOf(color);
    return rgb && closeToChannel(_redHexComp, rgb->red) &&
           closeToChannel(_greenHexComp, rgb->green) && closeToChannel(_blueHexComp, rgb->blue);
}

bool QTXHexColorSpec::isMatchToColorSpec(const QTXHexColorSpec& other, std::int64_t limit) const
{
    return differsByLess(_redHexComp, other._redHexComp, limit) &&
           differsByLess(_greenHexComp, other._greenHexComp, limit) &&
           differsByLess(_blueHexComp, other._blueHexComp, limit);
}

std::uint64_t QTXHexColorSpec::javaRGBInt() const
{
    return (((_redHexComp << 8) | _greenHexComp) << 8) | _blueHexComp;
}

std::uint64_t QTXHexColorSpec::javaRGBAInt() const
{
    return (truncatedUnsigned(_alphaComp * 255) << 24) | (_redHexComp << 16) |
           (_greenHexComp << 8) | _blueHexComp;
}

std::u16string QTXHexColorSpec::description() const
{
    return u"HexColorSpec:  red 0x" + twoLowerHexDigits(_redHexComp) + u"  green 0x" +
           twoLowerHexDigits(_greenHexComp) + u"  blue 0x" + twoLowerHexDigits(_blueHexComp) +
           u"\n";
}

}  // namespace vantorel
