#include "csscolor/CSSColorWriter.h"

#include "csscolor/ColorConversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace vantorel {
namespace {

constexpr int opaqueByte = 255;

struct Fractions {
    ColorTriple srgb;
    double alpha;
};

std::optional<Fractions> fractionsOf(const HostColor& color)
{
    const auto components = color.calibratedRGB();
    if (!components) return std::nullopt;
    const auto fraction = [](double value) { return value > 0 ? std::min(value, 1.0) : 0; };
    return Fractions{
        {fraction(components->red), fraction(components->green), fraction(components->blue)},
        fraction(components->alpha)};
}

int byteOf(double fraction)
{
    return static_cast<int>(std::lround(fraction * opaqueByte));
}

std::u16string widened(std::string_view ascii)
{
    return {ascii.begin(), ascii.end()};
}

void appendByte(std::u16string& text, int byte)
{
    if (byte >= 100) text += static_cast<char16_t>(u'0' + byte / 100);
    if (byte >= 10) text += static_cast<char16_t>(u'0' + byte / 10 % 10);
    text += static_cast<char16_t>(u'0' + byte % 10);
}

/// A number of 0 or more without zeros at its end.
std::u16string decimalText(double value, int mostDecimals)
{
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::fixed, mostDecimals);
    std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
    if (text.find('.') != std::string_view::npos) {
        text = text.substr(0, text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.remove_suffix(1);
    }
    return widened(text);
}

/// A number of 0..1 in thousandths, without zeros at its end.
std::u16string thousandthsText(int thousandths)
{
    if (thousandths == 0) return u"0";
    if (thousandths == 1000) return u"1";
    std::u16string text = u"0.";
    for (int rest = thousandths, unit = 100; rest > 0; rest %= unit, unit /= 10)
        text += static_cast<char16_t>(u'0' + rest / unit);
    return text;
}

/// Two decimals where they give the same alpha in 8 bits, else three (section 15.1).
std::u16string alphaText(double alpha)
{
    // In whole numbers: with fractions some halves would be rounded down.
    const int byte = byteOf(alpha);
    const auto parts = [byte](int whole) {
        return (byte * whole * 2 + opaqueByte) / (2 * opaqueByte);
    };
    const int percent = parts(100);
    const bool sameByte = (percent * opaqueByte + 50) / 100 == byte;
    return thousandthsText(sameByte ? percent * 10 : parts(1000));
}

std::u16string slashAlpha(double alpha)
{
    return byteOf(alpha) == opaqueByte ? u"" : u" / " + alphaText(alpha);
}

}  // namespace

std::optional<std::u16string> hexText(const HostColor& color)
{
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    std::u16string text = u"#";
    const auto append = [&text](double fraction) {
        constexpr std::u16string_view digits = u"0123456789abcdef";
        const auto byte = static_cast<std::size_t>(byteOf(fraction));
        text += digits[byte / 16];
        text += digits[byte % 16];
    };
    for (const double fraction : fractions->srgb)
        append(fraction);
    if (byteOf(fractions->alpha) != opaqueByte) append(fractions->alpha);
    return text;
}

std::optional<std::u16string> rgbText(const HostColor& color)
{
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    const bool opaque = byteOf(fractions->alpha) == opaqueByte;
    std::u16string text = opaque ? u"rgb(" : u"rgba(";
    text.reserve(std::size("rgba(255, 255, 255, 0.999)"));
    for (std::size_t i = 0; i < 3; ++i) {
        if (i > 0) text += u", ";
        appendByte(text, byteOf(fractions->srgb[i]));
    }
    if (!opaque) text += u", " + alphaText(fractions->alpha);
    return text + u")";
}

std::optional<std::u16string> hslText(const HostColor& color)
{
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    const auto [hue, saturation, lightness] = hslFromSRGB(fractions->srgb);
    return u"hsl(" + decimalText(hue, 2) + u" " + decimalText(saturation, 2) + u"% " +
           decimalText(lightness, 2) + u"%" + slashAlpha(fractions->alpha) + u")";
}

std::optional<std::u16string> oklchText(const HostColor& color)
{
    // Below this the chroma is written as 0 and the hue is noise.
    constexpr double smallestChroma = 0.000005;
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    const auto [lightness, chroma, hue] = polarFromRectangular(oklabFromSRGB(fractions->srgb));
    const bool isGrey = chroma < smallestChroma;
    return u"oklch(" + decimalText(std::clamp(lightness, 0.0, 1.0) * 100, 3) + u"% " +
           decimalText(isGrey ? 0 : chroma, 5) + u" " + decimalText(isGrey ? 0 : hue, 3) +
           slashAlpha(fractions->alpha) + u")";
}

}  // namespace vantorel
