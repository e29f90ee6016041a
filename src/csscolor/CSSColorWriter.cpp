#include "csscolor/CSSColorWriter.h"

#include "color/ChannelConversion.h"
#include "csscolor/ColorConversions.h"
#include "text/Decimals.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <array>
#include <cmath>

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

/// Removes trailing zeros.
std::u16string shortText(double value, int mostDecimals)
{
    return widened(shortFixedText(value, mostDecimals));
}

/// Formats a number of 0..1, given in thousandths, without trailing zeros.
std::u16string thousandthsText(int thousandths)
{
    if (thousandths == 0) return u"0";
    if (thousandths == 1000) return u"1";
    std::u16string text = u"0.";
    for (int rest = thousandths, unit = 100; rest > 0; rest %= unit, unit /= 10)
        text += static_cast<char16_t>(u'0' + rest / unit);
    return text;
}

/// Uses two decimals if they result in the same alpha in 8 bits, otherwise three (section 15.1).
std::u16string alphaText(double alpha)
{
    // In integers, because floating point would round some halves down.
    const int byte = nearestByte(alpha);
    const auto parts = [byte](int whole) {
        return (byte * whole * 2 + opaqueByte) / (2 * opaqueByte);
    };
    const int percent = parts(100);
    const bool sameByte = (percent * opaqueByte + 50) / 100 == byte;
    return thousandthsText(sameByte ? percent * 10 : parts(1000));
}

std::u16string slashAlpha(double alpha)
{
    return nearestByte(alpha) == opaqueByte ? u"" : u" / " + alphaText(alpha);
}

/// How a component is written: its factor, the most decimals, and "%" or nothing.
struct WrittenComponent {
    double unit;
    int decimals;
    std::u16string_view sign;
};

struct WrittenSpace {
    std::u16string_view beginning;
    std::array<WrittenComponent, 3> components;
};

/// The forms have about five significant digits, as the examples of CSS Color 4.
WrittenSpace writtenSpace(ColorSpace space)
{
    constexpr WrittenComponent part{1, 5, u""};
    constexpr WrittenComponent hue{1, 3, u""};
    constexpr WrittenComponent shortHue{1, 2, u""};
    constexpr WrittenComponent percent{1, 2, u"%"};
    constexpr WrittenComponent ofHundred{1, 3, u""};
    constexpr WrittenComponent okLightness{100, 3, u"%"};
    switch (space) {
        case ColorSpace::srgb:
            return {u"color(srgb ", {part, part, part}};
        case ColorSpace::srgbLinear:
            return {u"color(srgb-linear ", {part, part, part}};
        case ColorSpace::displayP3:
            return {u"color(display-p3 ", {part, part, part}};
        case ColorSpace::displayP3Linear:
            return {u"color(display-p3-linear ", {part, part, part}};
        case ColorSpace::a98RGB:
            return {u"color(a98-rgb ", {part, part, part}};
        case ColorSpace::proPhotoRGB:
            return {u"color(prophoto-rgb ", {part, part, part}};
        case ColorSpace::rec2020:
            return {u"color(rec2020 ", {part, part, part}};
        case ColorSpace::xyzD65:
            return {u"color(xyz ", {part, part, part}};
        case ColorSpace::xyzD50:
            return {u"color(xyz-d50 ", {part, part, part}};
        case ColorSpace::hsl:
            return {u"hsl(", {shortHue, percent, percent}};
        case ColorSpace::hwb:
            return {u"hwb(", {shortHue, percent, percent}};
        case ColorSpace::lab:
            return {u"lab(", {ofHundred, ofHundred, ofHundred}};
        case ColorSpace::lch:
            return {u"lch(", {ofHundred, ofHundred, hue}};
        case ColorSpace::oklab:
            return {u"oklab(", {okLightness, part, part}};
        case ColorSpace::oklch:
            return {u"oklch(", {okLightness, part, hue}};
    }
    return {};
}

}  // namespace

std::optional<std::u16string> hexText(const HostColor& color)
{
    return hexText(color, {EntryForm::lowercase, true});
}

std::optional<std::u16string> hexText(const HostColor& color, const HexForm& form)
{
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    std::u16string text;
    if (form.poundSign) text = u"#";
    const auto append = [&](double fraction) {
        appendHexByte(text, nearestByte(fraction), hexCaseOf(form.entryForm));
    };
    for (const double fraction : fractions->srgb)
        append(fraction);
    if (nearestByte(fractions->alpha) != opaqueByte) append(fractions->alpha);
    return text;
}

std::optional<std::u16string> rgbText(const HostColor& color)
{
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    const bool opaque = nearestByte(fractions->alpha) == opaqueByte;
    std::u16string text = opaque ? u"rgb(" : u"rgba(";
    text.reserve(std::size("rgba(255, 255, 255, 0.999)"));
    for (std::size_t i = 0; i < 3; ++i) {
        if (i > 0) text += u", ";
        appendDecimal(text, nearestByte(fractions->srgb[i]));
    }
    if (!opaque) text += u", " + alphaText(fractions->alpha);
    return text + u")";
}

std::u16string rgbTextWithAlpha(std::u16string opaqueText, double alpha)
{
    const std::u16string end = slashAlpha(alpha);
    if (end.empty()) return opaqueText;
    std::erase(opaqueText, u',');
    return opaqueText.insert(std::min(opaqueText.find(u')'), opaqueText.size()), end);
}

std::optional<std::u16string> hslText(const HostColor& color)
{
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    const auto [hue, saturation, lightness] = hslFromSRGB(fractions->srgb);
    return u"hsl(" + shortText(hue, 2) + u" " + shortText(saturation, 2) + u"% " +
           shortText(lightness, 2) + u"%" + slashAlpha(fractions->alpha) + u")";
}

std::optional<std::u16string> oklchText(const HostColor& color)
{
    const auto fractions = fractionsOf(color);
    if (!fractions) return std::nullopt;
    CSSColorValue value;
    value.components = fractions->srgb;
    value.alpha = fractions->alpha;
    return cssTextIn(ColorSpace::oklch, value);
}

std::u16string cssTextIn(ColorSpace space, const CSSColorValue& color)
{
    const bool hasNone = std::ranges::find(color.isMissing, true) != color.isMissing.end();
    const CSSColorValue value = converted(color, space);
    const WrittenSpace written = writtenSpace(space);
    std::u16string text = std::u16string(written.beginning);
    for (std::size_t i = 0; i < value.components.size(); ++i) {
        if (i > 0) text += u' ';
        const auto& [unit, decimals, sign] = written.components[i];
        if (hasNone && value.isMissing[i]) {
            text += u"none";
        } else {
            text += shortText(value.components[i] * unit, decimals) + std::u16string(sign);
        }
    }
    return text + (color.isAlphaMissing ? u" / none" : slashAlpha(color.alpha)) + u")";
}

}  // namespace vantorel
