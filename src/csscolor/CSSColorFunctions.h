#pragma once

#include "csscolor/CSSColorReader.h"
#include "csscolor/ColorConversions.h"
#include "csscolor/PredefinedColorSpaces.h"
#include "result/Message.h"

#include <array>
#include <string_view>

namespace vantorel {

/// A value of a colour function, read but not yet converted.
struct CSSValue {
    /// Angles are in degrees; percentages are converted by `CSSValueRule::hundredPercent`.
    double number = 0;
    bool isPercentage = false;
    bool isNone = false;
};

/// The rule of CSS Color 4 for one value of a colour function.
struct CSSValueRule {
    /// The name of the value in messages.
    PhraseText<> name;
    /// A hue is an angle or a number of degrees; any other value is a number or a percentage.
    bool isHue;
    /// The number that 100% stands for.
    double hundredPercent;
    /// Values are clamped to these limits.
    double smallest;
    double largest;
};

/// The legacy form with commas that a function has.
enum class CSSCommaForm {
    none,
    /// All three values are numbers, or all are percentages.
    allOfOneKind,
    /// A hue and two percentages.
    hueAndPercentages,
};

struct CSSColorFunction {
    std::u16string_view name;
    CSSColorForm form;
    CSSCommaForm commaForm;
    std::array<CSSValueRule, 3> values;
    /// Examples for messages.
    std::u16string_view example;
    std::u16string_view exampleWithCommas;
};

/// Returns the function of a name, which must be in lower case, or null.
[[nodiscard]] const CSSColorFunction* cssColorFunctionNamed(std::u16string_view name);

/// Returns the rules for the values of `color()` in a colour space.
[[nodiscard]] const std::array<CSSValueRule, 3>& cssValueRules(PredefinedColorSpace space);

[[nodiscard]] const CSSValueRule& cssAlphaRule();

struct SRGBResult {
    /// All components are 0..1.
    ColorTriple srgb;
    bool wasOutside;
};

/// Converts the values of a function to sRGB. `space` is used only for `color()`. The values must
/// be within the limits of their rules.
[[nodiscard]] SRGBResult srgbOfCSSValues(CSSColorForm form, PredefinedColorSpace space,
                                         const ColorTriple& values);

}  // namespace vantorel
