#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// The parts of error messages.
namespace vantorel {

[[nodiscard]] std::u16string joined(std::initializer_list<std::u16string_view> parts);

/// A piece of a text in quotation marks: only the beginning of a long one, with a blank for each
/// character that could break the line, and without half a character at its end.
[[nodiscard]] std::u16string quoted(std::u16string_view text);

}  // namespace vantorel
