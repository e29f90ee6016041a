#pragma once

#include <string>
#include <string_view>

/// The two forms in which texts are kept: UTF-16 inside, UTF-8 at files and terminals.
namespace vantorel {

inline constexpr char16_t replacementCharacter = u'\uFFFD';

/// UTF-8 to UTF-16; each byte that is not part of a well-formed sequence becomes U+FFFD. A
/// byte-order mark is kept as the character it is.
[[nodiscard]] std::u16string utf16FromUtf8(std::string_view utf8);

/// Whether a text is well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
[[nodiscard]] bool isWellFormedUtf8(std::string_view utf8);

/// UTF-16 to UTF-8; an unpaired surrogate becomes U+FFFD.
[[nodiscard]] std::string utf8FromUtf16(std::u16string_view utf16);

/// Appends a character as one or two units; U+FFFD for a surrogate and for anything above U+10FFFF.
void appendUtf16(std::u16string& text, char32_t character);

}  // namespace vantorel
