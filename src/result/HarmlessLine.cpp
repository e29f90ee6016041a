#include "result/HarmlessLine.h"

#include "text/Unicode.h"

namespace vantorel {

std::string harmlessLine(std::string_view utf8)
{
    std::u16string text = utf16FromUtf8(utf8);
    for (char16_t& c : text) {
        // Those from U+0080 on are commands to some terminals, too.
        if (c < 0x20 || (c >= 0x7F && c < 0xA0)) c = u' ';
    }
    return utf8FromUtf16(text);
}

std::string quotedText(std::string_view utf8)
{
    constexpr std::size_t mostBytes = 60;
    std::string text(utf8.substr(0, mostBytes));
    if (utf8.size() > mostBytes) {
        // Not half a character.
        while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80)
            text.pop_back();
        if (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xC0) text.pop_back();
        text += "...";
    }
    return '"' + harmlessLine(text) + '"';
}

}  // namespace vantorel
