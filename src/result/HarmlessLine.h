#pragma once

#include <string>
#include <string_view>

namespace vantorel {

/// A text as one line that cannot command a terminal: control characters become blanks, and bytes
/// that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string harmlessLine(std::string_view utf8);

/// A text in quotation marks: the beginning of a long one.
[[nodiscard]] std::string quotedText(std::string_view utf8);

}  // namespace vantorel
