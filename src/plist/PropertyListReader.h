#pragma once

#include "plist/PropertyList.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace vantorel {

/// The maximum nesting depth. Deeper texts are rejected, so that no text can exhaust the stack.
inline constexpr std::size_t deepestPropertyList = 512;

/// Reads a property list in the old-style text form:
///
///     { key = value; "another key" = (first, second); blob = <0fbd77 1c>; }
///
/// Strings are quoted with " or ', or bare if they consist of letters, digits and `_ $ / : . -`.
/// Quoted strings support the escapes \a \b \f \n \r \t \v \" \' \\; \NNN is a UTF-16 code unit in
/// octal, \Uhhhh one in hexadecimal. A backslash and the line feed after it are dropped; a
/// backslash before any other character yields that character. The semicolon before "}" and the
/// comma before ")" are optional. Comments are // and /* */. A leading byte-order mark is skipped.
/// If a key occurs twice, the later value is used.
///
/// Returns `std::nullopt` if the text is not a property list or has trailing content. Time and
/// memory are linear in the length of the text.
[[nodiscard]] std::optional<PropertyList> parsePropertyList(std::u16string_view text);

/// Returns the number, from 1, of the line on which a text is found not to be a property list; 0 if
/// it is one. That line or one before it has the error.
[[nodiscard]] std::size_t lineOfPropertyListError(std::u16string_view text);

}  // namespace vantorel
