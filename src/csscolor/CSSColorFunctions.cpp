#include "csscolor/CSSColorFunctions.h"

#include "csscolor/CSSTokenizer.h"

namespace vantorel {
namespace {

constexpr double unlimited = largestCSSNumber;

constexpr CSSValueRule anyHue{phraseText("hue"), true, 0, -unlimited, unlimited};

constexpr CSSValueRule channel(PhraseText<> name)
{
    return {name, false, cssChannelUnit, 0, cssChannelUnit};
}

constexpr CSSValueRule lightness(double hundredPercent)
{
    return {phraseText("lightness"), false, hundredPercent, 0, hundredPercent};
}

/// The rule for a saturation or chroma, which cannot be negative.
constexpr CSSValueRule strength(PhraseText<> name, double hundredPercent)
{
    return {name, false, hundredPercent, 0, unlimited};
}

constexpr CSSValueRule unbounded(PhraseText<> name, double hundredPercent)
{
    return {name, false, hundredPercent, -unlimited, unlimited};
}

constexpr std::array<CSSValueRule, 3> rgbValues{
    channel(phraseText("red")), channel(phraseText("green")), channel(phraseText("blue"))};
constexpr std::array<CSSValueRule, 3> relativeRGBValues{
    unbounded(phraseText("red"), cssChannelUnit), unbounded(phraseText("green"), cssChannelUnit),
    unbounded(phraseText("blue"), cssChannelUnit)};
// A saturation above 100% is not clamped on reading (CSS Color 4, section 7). The lightness is,
// because beyond its limits such a saturation would turn white and black into the opposite colour.
constexpr std::array<CSSValueRule, 3> hslValues{anyHue, strength(phraseText("saturation"), 100),
                                                lightness(100)};
// So that hsl(from ... h s l) is the same colour also outside sRGB.
constexpr std::array<CSSValueRule, 3> relativeHSLValues{
    anyHue, strength(phraseText("saturation"), 100), unbounded(phraseText("lightness"), 100)};
constexpr std::array<CSSValueRule, 3> predefinedRGBValues{unbounded(phraseText("red"), 1),
                                                          unbounded(phraseText("green"), 1),
                                                          unbounded(phraseText("blue"), 1)};
constexpr std::array<CSSValueRule, 3> predefinedXYZValues{
    unbounded(phraseText("X"), 1), unbounded(phraseText("Y"), 1), unbounded(phraseText("Z"), 1)};
constexpr CSSValueRule alphaRule{phraseText("alpha"), false, 1, 0, 1};

constexpr std::u16string_view rgbExample = u"rgb(255 128 0 / 50%)";
constexpr std::u16string_view rgbExampleWithCommas = u"rgb(255, 128, 0, 0.5)";
constexpr std::u16string_view hslExample = u"hsl(30 100% 50% / 50%)";
constexpr std::u16string_view hslExampleWithCommas = u"hsl(30, 100%, 50%, 0.5)";

constexpr std::array functions{
    CSSColorFunction{u"rgb", CSSColorForm::rgb, ColorSpace::srgb, CSSCommaForm::allOfOneKind,
                     rgbValues, rgbExample, rgbExampleWithCommas},
    CSSColorFunction{u"rgba", CSSColorForm::rgb, ColorSpace::srgb, CSSCommaForm::allOfOneKind,
                     rgbValues, rgbExample, rgbExampleWithCommas},
    CSSColorFunction{u"hsl", CSSColorForm::hsl, ColorSpace::hsl, CSSCommaForm::hueAndPercentages,
                     hslValues, hslExample, hslExampleWithCommas},
    CSSColorFunction{u"hsla", CSSColorForm::hsl, ColorSpace::hsl, CSSCommaForm::hueAndPercentages,
                     hslValues, hslExample, hslExampleWithCommas},
    CSSColorFunction{
        u"hwb",
        CSSColorForm::hwb,
        ColorSpace::hwb,
        CSSCommaForm::none,
        {anyHue, unbounded(phraseText("whiteness"), 100), unbounded(phraseText("blackness"), 100)},
        u"hwb(30 0% 0% / 50%)",
        u""},
    CSSColorFunction{
        u"lab",
        CSSColorForm::lab,
        ColorSpace::lab,
        CSSCommaForm::none,
        {lightness(100), unbounded(phraseText("a"), 125), unbounded(phraseText("b"), 125)},
        u"lab(67 42 74 / 50%)",
        u""},
    CSSColorFunction{u"lch",
                     CSSColorForm::lch,
                     ColorSpace::lch,
                     CSSCommaForm::none,
                     {lightness(100), strength(phraseText("chroma"), 150), anyHue},
                     u"lch(67 85 60 / 50%)",
                     u""},
    CSSColorFunction{
        u"oklab",
        CSSColorForm::oklab,
        ColorSpace::oklab,
        CSSCommaForm::none,
        {lightness(1), unbounded(phraseText("a"), 0.4), unbounded(phraseText("b"), 0.4)},
        u"oklab(73% 0.1 0.15 / 50%)",
        u""},
    CSSColorFunction{u"oklch",
                     CSSColorForm::oklch,
                     ColorSpace::oklch,
                     CSSCommaForm::none,
                     {lightness(1), strength(phraseText("chroma"), 0.4), anyHue},
                     u"oklch(73% 0.18 54 / 50%)",
                     u""},
    CSSColorFunction{u"color", CSSColorForm::color, ColorSpace::srgb, CSSCommaForm::none,
                     predefinedRGBValues, u"color(display-p3 1 0.5 0 / 50%)", u""},
};

}  // namespace

const CSSColorFunction* cssColorFunctionNamed(std::u16string_view name)
{
    for (const CSSColorFunction& function : functions) {
        if (function.name == name) return &function;
    }
    return nullptr;
}

const std::array<CSSValueRule, 3>& cssValueRules(ColorSpace space)
{
    const bool isXYZ = space == ColorSpace::xyzD65 || space == ColorSpace::xyzD50;
    return isXYZ ? predefinedXYZValues : predefinedRGBValues;
}

const std::array<CSSValueRule, 3>& cssRelativeValueRules(const CSSColorFunction& function)
{
    if (function.form == CSSColorForm::rgb) return relativeRGBValues;
    return function.form == CSSColorForm::hsl ? relativeHSLValues : function.values;
}

const CSSValueRule& cssAlphaRule()
{
    return alphaRule;
}

}  // namespace vantorel
