#pragma once

#include <algorithm>
#include <concepts>
#include <string>
#include <string_view>

/// ASCII character classes and letter case for UTF-8 and UTF-16 texts. The functions ignore the
/// locale: a character outside ASCII belongs to no class and has no other case.
namespace vantorel {

/// A code unit of UTF-8 or UTF-16, or a whole character.
template <class Type>
concept TextUnit =
    std::same_as<Type, char> || std::same_as<Type, char16_t> || std::same_as<Type, char32_t>;

[[nodiscard]] constexpr bool isDigit(TextUnit auto c)
{
    return c >= '0' && c <= '9';
}

[[nodiscard]] constexpr bool isUpperCase(TextUnit auto c)
{
    return c >= 'A' && c <= 'Z';
}

[[nodiscard]] constexpr bool isLowerCase(TextUnit auto c)
{
    return c >= 'a' && c <= 'z';
}

[[nodiscard]] constexpr bool isLetter(TextUnit auto c)
{
    return isUpperCase(c) || isLowerCase(c);
}

[[nodiscard]] constexpr bool isLetterOrDigit(TextUnit auto c)
{
    return isLetter(c) || isDigit(c);
}

/// A space or a tab.
[[nodiscard]] constexpr bool isBlank(TextUnit auto c)
{
    return c == ' ' || c == '\t';
}

/// U+0000 to U+001F and U+007F.
[[nodiscard]] constexpr bool isControl(TextUnit auto c)
{
    return static_cast<char32_t>(c) < 0x20 || c == 0x7F;
}

template <TextUnit Unit>
[[nodiscard]] constexpr Unit lowerCase(Unit c)
{
    return isUpperCase(c) ? static_cast<Unit>(c - 'A' + 'a') : c;
}

template <TextUnit Unit>
[[nodiscard]] constexpr Unit upperCase(Unit c)
{
    return isLowerCase(c) ? static_cast<Unit>(c - 'a' + 'A') : c;
}

template <TextUnit Unit>
[[nodiscard]] std::basic_string<Unit> lowerCased(std::basic_string<Unit> text)
{
    std::ranges::transform(text, text.begin(), lowerCase<Unit>);
    return text;
}

template <TextUnit Unit>
[[nodiscard]] std::basic_string<Unit> upperCased(std::basic_string<Unit> text)
{
    std::ranges::transform(text, text.begin(), upperCase<Unit>);
    return text;
}

template <TextUnit Unit>
[[nodiscard]] constexpr bool equalIgnoringCase(std::basic_string_view<Unit> left,
                                               std::basic_string_view<Unit> right)
{
    return std::ranges::equal(left, right, {}, lowerCase<Unit>, lowerCase<Unit>);
}

/// Replaces each control character by a space, so that the text can be shown on one line.
template <TextUnit Unit>
[[nodiscard]] std::basic_string<Unit> withoutControls(std::basic_string<Unit> text)
{
    std::ranges::replace_if(text, isControl<Unit>, Unit{' '});
    return text;
}

/// Converts ASCII to UTF-16. Bytes above 0x7F are not decoded.
[[nodiscard]] inline std::u16string widened(std::string_view ascii)
{
    return {ascii.begin(), ascii.end()};
}

}  // namespace vantorel
