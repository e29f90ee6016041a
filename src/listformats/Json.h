#pragma once

#include <string>
#include <string_view>

namespace vantorel {

/// Appends a text as a JSON string, quotation marks included.
void appendJson(std::string& json, std::string_view utf8);
void appendJson(std::string& json, std::u16string_view utf16);

/// Appends `"key":` with a comma before it, unless an object or a list has just been opened.
void appendJsonKey(std::string& json, std::string_view key);

}  // namespace vantorel
