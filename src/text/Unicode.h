#pragma once

#include <string>
#include <string_view>

/// Conversions between UTF-16, which the programs use internally, and UTF-8, which files and
/// terminals use.
namespace vantorel {

inline constexpr char16_t replacementCharacter = u'\uFFFD';

/// Converts UTF-8 to UTF-16. Each byte that is not part of a well-formed sequence becomes U+FFFD. A
/// byte-order mark is kept as a character.
[[nodiscard]] std::u16string utf16FromUtf8(std::string_view utf8);

/// Returns whether a text is well-formed UTF-8: no overlong forms, no surrogates, no character
/// above U+10FFFF.
[[nodiscard]] bool isWellFormedUtf8(std::string_view utf8);

/// Converts UTF-16 to UTF-8. Each unpaired surrogate becomes U+FFFD.
[[nodiscard]] std::string utf8FromUtf16(std::u16string_view utf16);

/// Appends a character as one or two code units. Surrogates and values above U+10FFFF become
/// U+FFFD.
void appendUtf16(std::u16string& text, char32_t character);

}  // namespace vantorel
