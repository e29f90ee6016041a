#pragma once

#include "csscolor/CSSColorReader.h"
#include "csscolor/ColorSpaces.h"
#include "result/Message.h"

#include <array>
#include <string_view>

namespace vantorel {

/// A value of a colour function.
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
    /// Values are clamped to these limits. Hues have none: they become 0..360 degrees.
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
    /// For `color()`, it is the one that is written instead.
    ColorSpace space;
    CSSCommaForm commaForm;
    std::array<CSSValueRule, 3> values;
    /// Examples for messages.
    std::u16string_view example;
    std::u16string_view exampleWithCommas;
};

/// Returns the function of a name, which must be in lower case, or null.
[[nodiscard]] const CSSColorFunction* cssColorFunctionNamed(std::u16string_view name);

/// Returns the rules for the values of `color()` in a colour space.
[[nodiscard]] const std::array<CSSValueRule, 3>& cssValueRules(ColorSpace space);

/// Returns the rules for the values of a relative colour. Those of rgb() and hsl() are less
/// limited, because the result is not one of the old form (CSS Color 5, section 4.1).
[[nodiscard]] const std::array<CSSValueRule, 3>& cssRelativeValueRules(
    const CSSColorFunction& function);

[[nodiscard]] const CSSValueRule& cssAlphaRule();

/// The number in rgb() for a channel of 1.
inline constexpr double cssChannelUnit = 255;

}  // namespace vantorel
