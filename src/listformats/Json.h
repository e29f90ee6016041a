#pragma once

#include <string>
#include <string_view>

/// JSON is read by a library and written by these functions. A report of a colour takes half as long
/// again through the library, which makes a tree of each line of a stream first, and numbers would
/// lose their form: a contrast of 21.00, an opacity of 1.
namespace vantorel {

/// Appends a text as a JSON string, quotation marks included.
void appendJson(std::string& json, std::string_view utf8);
void appendJson(std::string& json, std::u16string_view utf16);

/// Appends `"key":` with a comma before it, unless an object or a list has just been opened.
void appendJsonKey(std::string& json, std::string_view key);

}  // namespace vantorel
