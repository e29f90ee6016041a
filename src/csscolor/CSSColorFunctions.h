#pragma once

#include "csscolor/CSSColorReader.h"
#include "csscolor/ColorConversions.h"
#include "csscolor/PredefinedColorSpaces.h"
#include "result/Message.h"

#include <array>
#include <string_view>

namespace vantorel {

/// One value of a colour function as it is written.
struct CSSValue {
    /// In degrees for an angle.
    double number = 0;
    bool isPercentage = false;
    bool isNone = false;
};

/// What CSS Color 4 says of one value of a colour function.
struct CSSValueRule {
    /// For messages.
    PhraseText<> name;
    /// A hue is an angle or a number of degrees; every other value a number or a percentage.
    bool isHue;
    double hundredPercent;
    /// Values beyond these count as the limit.
    double smallest;
    double largest;
};

/// Which legacy form with commas a function has.
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
    /// For messages.
    std::u16string_view example;
    std::u16string_view exampleWithCommas;
};

/// The rule of a function's name in lower case, or null.
[[nodiscard]] const CSSColorFunction* cssColorFunctionNamed(std::u16string_view name);

/// The values of `color()` in one of its spaces.
[[nodiscard]] const std::array<CSSValueRule, 3>& cssValueRules(PredefinedColorSpace space);

[[nodiscard]] const CSSValueRule& cssAlphaRule();

struct SRGBResult {
    /// 0..1 each.
    ColorTriple srgb;
    bool wasOutside;
};

/// The colour of a function's values; `space` counts for `color()` alone. The values must be within
/// their rules.
[[nodiscard]] SRGBResult srgbOfCSSValues(CSSColorForm form, PredefinedColorSpace space,
                                         const ColorTriple& values);

}  // namespace vantorel
