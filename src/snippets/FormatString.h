#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace vantorel {

/// An argument for one conversion of a format.
using FormatArgument = std::variant<std::uint64_t, double, std::u16string>;

/// The maximum length of a result, in UTF-16 units. Longer results are cut.
inline constexpr std::size_t longestFormatResult = 1 << 20;

/// Formats like C's printf in the C locale. Formats come from user files, so it never reads an
/// argument that it was not given and never writes through one.
///
/// Supports the conversions d i u o x X c f F e E g G a A s @ and %, the flags - + space 0 #, a
/// width and a precision. As in C, `%d` and `%x` use the low 32 bits of an integer, h and hh the
/// low 16 and 8; with l, ll, z and the like all 64 bits are used. Zero with a precision of zero
/// prints no digits.
///
/// If a format and its arguments disagree:
///   - an integer conversion of a real number uses its integer part, saturating; a real-number
///     conversion of an integer uses its value;
///   - a number conversion of a text prints the text;
///   - %s or %@ of a number prints it like %lu or %g;
///   - a conversion without an argument, an unknown one (such as %n), and a width or precision
///     given by an asterisk are copied unchanged and use no argument;
///   - surplus arguments are ignored.
[[nodiscard]] std::u16string formatted(std::u16string_view format,
                                       std::span<const FormatArgument> arguments);

}  // namespace vantorel
