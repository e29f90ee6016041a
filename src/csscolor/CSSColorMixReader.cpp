#include "csscolor/CSSCalculation.h"
#include "csscolor/CSSColorReading.h"

#include <algorithm>
#include <optional>

namespace vantorel {
namespace {

constexpr std::u16string_view mixExample = u"color-mix(in oklab, red 30%, blue)";
constexpr std::u16string_view lightDarkExample = u"light-dark(black, white)";

struct MixedColor {
    CSSColorReading color;
    /// 0..1, if it is written.
    std::optional<double> share;
};

bool readComma(CSSParser& parser, std::u16string_view example)
{
    if (parser.skip(CSSTokenKind::comma)) return true;
    if (parser.is(CSSTokenKind::end)) {
        parser.fail(phrase("The function is not closed"), writeAs(example));
    } else {
        parser.failAtToken(phrase("A comma is missing before \"%1\"", parser.quoted()),
                           writeAs(example));
    }
    return false;
}

std::optional<ColorSpace> readMixingSpace(CSSParser& parser)
{
    if (!parser.isName(u"in")) {
        return parser.failAtToken(phrase("color-mix() must begin with \"in\" and a colour space"),
                                  writeAs(mixExample));
    }
    parser.advance();
    const auto space =
        parser.is(CSSTokenKind::name) ? colorSpaceNamed(parser.token().name) : std::nullopt;
    if (!space) {
        return parser.failAtToken(
            phrase("\"%1\" is not a colour space of color-mix()", parser.quoted()),
            phrase("write a space of color(), or hsl, hwb, lab, lch, oklab or oklch"));
    }
    parser.advance();
    return space;
}

/// Reads "longer hue" and the like. Without it, the arc is the shorter one.
std::optional<HueArc> readArc(CSSParser& parser, ColorSpace space)
{
    if (!parser.is(CSSTokenKind::name)) return HueArc::shorter;
    const auto arc = hueArcNamed(parser.token().name);
    if (!arc) {
        return parser.fail(phrase("\"%1\" is not a way around the circle of hues", parser.quoted()),
                           phrase("write shorter, longer, increasing or decreasing hue"));
    }
    if (!placeOfHue(space)) {
        return parser.fail(phrase("\"%1\" needs a colour space with a hue", parser.quoted()),
                           phrase("use hsl, hwb, lch or oklch"));
    }
    parser.advance();
    if (!parser.isName(u"hue")) {
        return parser.failAtToken(
            phrase("The word \"hue\" is missing before \"%1\"", parser.quoted()),
            writeAs(u"color-mix(in oklch longer hue, red, blue)"));
    }
    parser.advance();
    return arc;
}

bool startsPercentage(const CSSParser& parser)
{
    return parser.is(CSSTokenKind::percentage) ||
           (parser.is(CSSTokenKind::function) && isCSSMathFunction(parser.token().name));
}

/// Reads how much of a colour is mixed in, 0..1.
std::optional<double> readShare(CSSParser& parser)
{
    const bool isCalculated = parser.is(CSSTokenKind::function);
    const std::u16string written = parser.quoted();
    const auto number =
        isCalculated ? readCSSMathFunction(parser, {}) : readCSSNumber(parser, CSSTurns::dropped);
    if (!number) return std::nullopt;
    if (number->kind != CSSNumberKind::percentage) {
        return parser.fail(phrase("The share of a colour must be a percentage"),
                           writeAs(mixExample));
    }
    const double percent = censored(number->value);
    if (!isCalculated && (percent < 0 || percent > 100)) {
        return parser.fail(
            phrase("The share of a colour must be from 0% to 100%, not \"%1\"", written));
    }
    return std::clamp(percent, 0.0, 100.0) / 100;
}

/// Reads a colour and its share, in either order.
std::optional<MixedColor> readMixedColor(CSSParser& parser, CSSTheme theme)
{
    MixedColor mixedColor;
    if (startsPercentage(parser) && !(mixedColor.share = readShare(parser))) return std::nullopt;
    const auto color = readColor(parser, theme);
    if (!color) return std::nullopt;
    mixedColor.color = *color;
    if (!mixedColor.share && startsPercentage(parser) && !(mixedColor.share = readShare(parser))) {
        return std::nullopt;
    }
    return mixedColor;
}

/// The share of the second colour, and what the result keeps of its alpha.
struct Shares {
    double ofSecond;
    double alpha;
};

/// Shares that do not add up to 1 are scaled; if they are less, the result is translucent.
std::optional<Shares> sharesOf(const MixedColor& first, const MixedColor& second)
{
    if (!first.share && !second.share) return Shares{0.5, 1};
    if (!first.share) return Shares{*second.share, 1};
    if (!second.share) return Shares{1 - *first.share, 1};
    const double sum = *first.share + *second.share;
    if (sum == 0) return std::nullopt;
    return Shares{*second.share / sum, std::min(sum, 1.0)};
}

}  // namespace

std::optional<CSSColorReading> readColorMix(CSSParser& parser, CSSTheme theme)
{
    const CSSParser::Nesting nesting(parser);
    if (!nesting) return std::nullopt;
    parser.advance();
    const auto space = readMixingSpace(parser);
    if (!space) return std::nullopt;
    const auto arc = readArc(parser, *space);
    if (!arc || !readComma(parser, mixExample)) return std::nullopt;
    const auto first = readMixedColor(parser, theme);
    if (!first || !readComma(parser, mixExample)) return std::nullopt;
    const auto second = readMixedColor(parser, theme);
    if (!second || !parser.readClosing(u"color-mix", mixExample)) return std::nullopt;
    const auto shares = sharesOf(*first, *second);
    if (!shares) {
        return parser.fail(phrase("color-mix() mixes 0% of both colours"), writeAs(mixExample));
    }
    CSSColorReading reading;
    reading.form = CSSColorForm::mix;
    reading.isSRGB = false;
    reading.value = mixed(first->color.value, second->color.value, shares->ofSecond, *space, *arc);
    reading.value.alpha *= shares->alpha;
    return reading;
}

std::optional<CSSColorReading> readLightDark(CSSParser& parser, CSSTheme theme)
{
    const CSSParser::Nesting nesting(parser);
    if (!nesting) return std::nullopt;
    const std::u16string written = parser.quotedFunction();
    parser.advance();
    auto light = readColor(parser, theme);
    if (!light || !readComma(parser, lightDarkExample)) return std::nullopt;
    auto dark = readColor(parser, theme);
    if (!dark || !parser.readClosing(u"light-dark", lightDarkExample)) return std::nullopt;
    switch (theme) {
        case CSSTheme::light:
            return light;
        case CSSTheme::dark:
            return dark;
        case CSSTheme::unknown:
            break;
    }
    return parser.fail(phrase("The colour of %1() depends on the theme of the page", written),
                       phrase("write one of its two colours"));
}

}  // namespace vantorel
