#pragma once

#include "text/ASCII.h"

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Decimal numbers. The functions ignore the locale: the decimal point is always ".".
namespace vantorel {

/// Formats a whole number; negative numbers start with "-".
[[nodiscard]] inline std::u16string decimalText(std::integral auto number)
{
    return widened(std::to_string(number));
}

/// Appends a byte as a decimal number without leading zeros.
template <TextUnit Unit>
constexpr void appendDecimal(std::basic_string<Unit>& text, std::uint8_t byte)
{
    if (byte >= 100) text += static_cast<Unit>('0' + byte / 100);
    if (byte >= 10) text += static_cast<Unit>('0' + byte / 10 % 10);
    text += static_cast<Unit>('0' + byte % 10);
}

/// Formats a number with the given number of decimals (0 to 100), correctly rounded.
[[nodiscard]] std::string fixedText(double number, int decimals);

/// Like `fixedText`, but without trailing zeros and without "-" before 0.
[[nodiscard]] std::string shortFixedText(double number, int mostDecimals);

/// Parses a text that consists of one whole number: decimal digits, for signed types with an
/// optional leading "-". Returns `std::nullopt` for any other text and for numbers out of the
/// type's range.
template <std::integral Number>
[[nodiscard]] std::optional<Number> wholeNumber(std::string_view text)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return number;
}

/// Parses the number at the end of a name such as "Red 2". Returns `std::nullopt` unless `digits`
/// is one to nine digits, the first of which is not 0.
[[nodiscard]] std::optional<std::size_t> nameNumber(std::u16string_view digits);

}  // namespace vantorel
