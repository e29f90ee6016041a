#include "listformats/Json.h"

#include "text/HexDigits.h"
#include "text/Unicode.h"

namespace vantorel {

void appendJson(std::string& json, std::string_view utf8)
{
    const std::string repaired =
        isWellFormedUtf8(utf8) ? std::string() : utf8FromUtf16(utf16FromUtf8(utf8));
    if (!repaired.empty()) utf8 = repaired;
    json += '"';
    for (const char c : utf8) {
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (isControl(c)) {
            json += "\\u00";
            appendHexByte(json, static_cast<std::uint8_t>(c), HexCase::lower);
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
