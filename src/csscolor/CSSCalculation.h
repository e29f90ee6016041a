#pragma once

#include "csscolor/CSSParser.h"

#include <optional>
#include <span>
#include <string_view>

/// The math functions of CSS Values 4, section 10, as far as colours need them: calc(), min(),
/// max() and clamp().
namespace vantorel {

enum class CSSNumberKind {
    number,
    /// 50 for "50%".
    percentage,
    /// In degrees.
    angle,
};

struct CSSNumber {
    /// Can be infinite, or not a number.
    double value = 0;
    CSSNumberKind kind = CSSNumberKind::number;
};

/// A name that stands for a number, such as "r" in a relative colour.
struct CSSNamedNumber {
    std::u16string_view name;
    double value;
};

[[nodiscard]] bool isCSSMathFunction(std::u16string_view name);

/// Reads a math function, whose name is the parser's token, to the token after its ")". The
/// calculation can use `names`, and the constants `e`, `pi`, `infinity` and `NaN`.
[[nodiscard]] std::optional<CSSNumber> readCSSMathFunction(CSSParser& parser,
                                                           std::span<const CSSNamedNumber> names);

/// Whether the angles that are read keep their whole turns.
enum class CSSTurns { kept, dropped };

/// Reads the number, percentage or angle that is the parser's token, to the next token.
[[nodiscard]] std::optional<CSSNumber> readCSSNumber(CSSParser& parser, CSSTurns turns);

/// Returns what counts outside a calculation (CSS Values 4, section 10.9): 0 for what is not a
/// number, and a finite number for what is infinite.
[[nodiscard]] double censored(double number);

/// Whether the value of a function, such as var(), depends on the page.
[[nodiscard]] bool dependsOnPage(std::u16string_view function);

/// Fails at a function in the place of a value: because its value depends on the page, or because
/// it is not known.
std::nullopt_t failAtFunction(CSSParser& parser);

}  // namespace vantorel
