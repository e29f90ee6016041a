#pragma once

#include "plist/PropertyList.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace vantorel {

/// Values nested deeper than this are taken for damage, so that no text can exhaust the stack.
inline constexpr std::size_t deepestPropertyList = 512;

/// Reads the old-style text form of a property list:
///
///     { key = value; "another key" = (first, second); blob = <0fbd77 1c>; }
///
/// Strings are quoted with " or ', or bare when made of letters, digits and `_ $ / : . -`. In
/// quoted strings \a \b \f \n \r \t \v \" \' \\ and a backslash before a line break (which drops
/// both) are escapes, \NNN is the code unit of an octal number, \Uhhhh that of a hexadecimal one; a
/// backslash before any other character stands for that character. The semicolon before "}" and a
/// comma before
/// ")" may be missing or superfluous. Comments are // and /* */; a byte-order mark may come first.
/// Of a key that comes twice the later value counts.
///
/// Nothing when the text is no property list, or holds anything behind it. Time and memory grow
/// with the length of the text and no faster.
[[nodiscard]] std::optional<PropertyList> parsePropertyList(std::u16string_view text);

}  // namespace vantorel
