#include "listformats/Json.h"

#include "host/HostText.h"

namespace vantorel {

void appendJson(std::string& json, std::string_view utf8)
{
    constexpr std::string_view digits = "0123456789abcdef";
    const std::string repaired =
        isWellFormedUtf8(utf8) ? std::string() : utf8FromUtf16(utf16FromUtf8(utf8));
    if (!repaired.empty()) utf8 = repaired;
    json += '"';
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            json += "\\u00";
            json += digits[byte >> 4];
            json += digits[byte & 15];
        } else {
            json += c;
        }
    }
    json += '"';
}

void appendJson(std::string& json, std::u16string_view utf16)
{
    appendJson(json, std::string_view(utf8FromUtf16(utf16)));
}

void appendJsonKey(std::string& json, std::string_view key)
{
    if (!json.ends_with('{') && !json.ends_with('[')) json += ',';
    appendJson(json, key);
    json += ':';
}

}  // namespace vantorel
