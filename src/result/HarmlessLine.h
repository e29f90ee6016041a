#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantorel {

/// Makes a text safe to print on one line of a terminal: control characters become spaces, and
/// bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string harmlessLine(std::string_view utf8);

/// Shortens a long text to its beginning followed by "...". Characters are never split.
[[nodiscard]] std::string excerpt(std::string_view utf8, std::size_t mostBytes = 60);
[[nodiscard]] std::u16string excerpt(std::u16string_view text, std::size_t mostUnits);

}  // namespace vantorel
