#pragma once

#include <string>
#include <string_view>

/// Functions that write JSON. A library reads it, but is not used for writing: it would take half
/// as long again for a report of a colour, because it first builds a tree for each line of a
/// stream, and it would change the format of numbers, such as a contrast of 21.00 or an opacity
/// of 1.
namespace vantorel {

/// Appends a text as a JSON string, including the quotation marks.
void appendJson(std::string& json, std::string_view utf8);
void appendJson(std::string& json, std::u16string_view utf16);

/// Appends `"key":`, preceded by a comma unless an object or array has just been opened.
void appendJsonKey(std::string& json, std::string_view key);

}  // namespace vantorel
