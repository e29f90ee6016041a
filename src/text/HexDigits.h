#pragma once

#include "text/ASCII.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// Hexadecimal digits, read in either letter case.
namespace vantorel {

enum class HexCase : bool { lower, upper };

/// The sixteen digits, indexed by value.
[[nodiscard]] constexpr std::string_view hexDigits(HexCase letterCase)
{
    return letterCase == HexCase::upper ? "0123456789ABCDEF" : "0123456789abcdef";
}

/// Returned for characters that are not hex digits. Callers may combine several values with "or":
/// the result is at least 16 if one of them was not a digit.
inline constexpr std::uint8_t notAHexDigit = 0xFF;

/// The digit value of each byte, or `notAHexDigit`.
inline constexpr std::array<std::uint8_t, 256> hexDigitValues = [] {
    std::array<std::uint8_t, 256> values{};
    values.fill(notAHexDigit);
    for (const HexCase letterCase : {HexCase::lower, HexCase::upper}) {
        std::uint8_t value = 0;
        for (const char digit : hexDigits(letterCase))
            values[static_cast<unsigned char>(digit)] = value++;
    }
    return values;
}();

/// Returns 0..15, or `notAHexDigit`.
[[nodiscard]] constexpr std::uint8_t hexDigitValue(char c)
{
    return hexDigitValues[static_cast<unsigned char>(c)];
}

[[nodiscard]] constexpr std::uint8_t hexDigitValue(char16_t c)
{
    return c < hexDigitValues.size() ? hexDigitValues[c] : notAHexDigit;
}

[[nodiscard]] constexpr bool isHexDigit(TextUnit auto c)
{
    return hexDigitValue(c) != notAHexDigit;
}

/// Appends the lowest `count` hex digits of a value, most significant first, including leading
/// zeros.
template <TextUnit Unit>
constexpr void appendHexDigits(std::basic_string<Unit>& text, std::uint64_t value,
                               std::size_t count, HexCase letterCase)
{
    const std::string_view digits = hexDigits(letterCase);
    while (count-- > 0)
        text += static_cast<Unit>(digits[count < 16 ? value >> (4 * count) & 15 : 0]);
}

/// Appends a byte as two hex digits.
template <TextUnit Unit>
constexpr void appendHexByte(std::basic_string<Unit>& text, std::uint8_t byte, HexCase letterCase)
{
    appendHexDigits(text, byte, 2, letterCase);
}

/// Appends a colour as "#rrggbb".
template <TextUnit Unit>
constexpr void appendHexColor(std::basic_string<Unit>& text, const std::array<std::uint8_t, 3>& rgb,
                              HexCase letterCase)
{
    text += Unit{'#'};
    for (const std::uint8_t byte : rgb)
        appendHexByte(text, byte, letterCase);
}

}  // namespace vantorel
