#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace vantorel {

/// A value for a conversion of a format.
using FormatArgument = std::variant<std::uint64_t, double, std::u16string>;

/// Widths and precisions beyond these are cut down to them.
inline constexpr std::size_t widestFormatField = 1000;
inline constexpr std::size_t finestFormatPrecision = 300;
/// A result is not longer than this, in UTF-16 units.
inline constexpr std::size_t longestFormatResult = 1 << 20;

/// C's printf in the C locale, for formats that come from a user's files: it never reads an
/// argument that it was not given and never writes through one.
///
/// Conversions d i u o x X c f F e E g G a A s @ and %, with the flags - + blank 0 #, a width and a
/// precision. As in C, `%d` and `%x` take the low 32 bits of a whole number and `%ld`, `%llx`,
/// `%zu`
/// ... all 64; h and hh take 16 and 8. Zero with precision zero prints no digits.
///
/// Where a format and its arguments disagree:
///   - a whole-number conversion of a real number takes its integer part, saturating; a real-number
///     conversion of a whole number takes its value;
///   - a number conversion of a text, and %s or %@ of a number, print the text, or the number as
///     %lu or %g would;
///   - a conversion without an argument left, one that is unknown (%n among them), and a width or
///     precision of "*" stand in the result as they stand in the format and take no argument;
///   - arguments that are left over are ignored.
[[nodiscard]] std::u16string formatted(std::u16string_view format,
                                       std::span<const FormatArgument> arguments);

}  // namespace vantorel
