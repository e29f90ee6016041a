#include "plist/PropertyListWriter.h"

#include "text/ASCII.h"
#include "text/HexDigits.h"

#include <algorithm>

namespace vantorel {
namespace {

bool isSafeBare(char16_t c)
{
    return isLetterOrDigit(c) || c == u'_';
}

void appendString(std::u16string& text, const std::u16string& string)
{
    if (!string.empty() && std::all_of(string.begin(), string.end(), isSafeBare)) {
        text += string;
        return;
    }
    constexpr std::u16string_view meanings = u"\a\b\f\n\r\t\v\"\\";
    constexpr std::u16string_view names = u"abfnrtv\"\\";
    text += u'"';
    for (const char16_t c : string) {
        const std::size_t escape = meanings.find(c);
        if (escape != std::u16string_view::npos) {
            text += u'\\';
            text += names[escape];
        } else if (c >= 0x20 && c < 0x7F) {
            text += c;
        } else {
            text += u"\\U";
            appendHexDigits(text, c, 4, HexCase::lower);
        }
    }
    text += u'"';
}

void appendData(std::u16string& text, const std::string& bytes)
{
    constexpr std::size_t groupSize = 4;
    text += u'<';
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0 && i % groupSize == 0) text += u' ';
        appendHexByte(text, static_cast<unsigned char>(bytes[i]), HexCase::lower);
    }
    text += u'>';
}

void appendIndentation(std::u16string& text, std::size_t level)
{
    text.append(level * 4, u' ');
}

void appendValue(std::u16string& text, const PropertyList& value, std::size_t level)
{
    if (const auto* string = value.string()) appendString(text, *string);
    if (const auto* bytes = value.data()) appendData(text, *bytes);
    if (const auto* elements = value.array()) {
        text += u"(\n";
        for (std::size_t i = 0; i < elements->size(); ++i) {
            appendIndentation(text, level + 1);
            appendValue(text, (*elements)[i], level + 1);
            text += i + 1 < elements->size() ? u",\n" : u"\n";
        }
        appendIndentation(text, level);
        text += u')';
    }
    if (const auto* entries = value.dictionary()) {
        text += u"{\n";
        for (const auto& [key, entry] : *entries) {
            appendIndentation(text, level + 1);
            appendString(text, key);
            text += u" = ";
            appendValue(text, entry, level + 1);
            text += u";\n";
        }
        appendIndentation(text, level);
        text += u'}';
    }
}

}  // namespace

std::u16string propertyListText(const PropertyList& value)
{
    std::u16string text;
    appendValue(text, value, 0);
    return text;
}

}  // namespace vantorel
