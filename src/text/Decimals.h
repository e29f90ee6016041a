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

/// Decimal numbers. No locale takes part: the point is always ".".
namespace vantorel {

/// A whole number, with "-" before a negative one.
[[nodiscard]] inline std::u16string decimalText(std::integral auto number)
{
    return widened(std::to_string(number));
}

/// Appends 0..255.
template <TextUnit Unit>
constexpr void appendDecimal(std::basic_string<Unit>& text, std::uint8_t byte)
{
    if (byte >= 100) text += static_cast<Unit>('0' + byte / 100);
    if (byte >= 10) text += static_cast<Unit>('0' + byte / 10 % 10);
    text += static_cast<Unit>('0' + byte % 10);
}

/// Any number with that many decimals, 0 to 100, correctly rounded.
[[nodiscard]] std::string fixedText(double number, int decimals);

/// As `fixedText`, but without zeros at the end and without "-" before 0.
[[nodiscard]] std::string shortFixedText(double number, int mostDecimals);

/// A text that is a whole number of that type and nothing else: digits, for a signed type after "-"
/// or without it. `std::nullopt` for any other text and for a number that the type cannot hold.
template <std::integral Number>
[[nodiscard]] std::optional<Number> wholeNumber(std::string_view text)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return number;
}

/// The number that tells names apart, as in "Red 2": one to nine digits, the first of them not 0.
[[nodiscard]] std::optional<std::size_t> nameNumber(std::u16string_view digits);

}  // namespace vantorel
