#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantorel {

/// A text as one line that cannot command a terminal: control characters become blanks, and bytes
/// that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string harmlessLine(std::string_view utf8);

/// The text, or the beginning of a long one with "..." after it. Never half a character.
[[nodiscard]] std::string excerpt(std::string_view utf8, std::size_t mostBytes = 60);
[[nodiscard]] std::u16string excerpt(std::u16string_view text, std::size_t mostUnits);

}  // namespace vantorel
