#include "listformats/HarmlessLine.h"

#include "host/HostText.h"

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

}  // namespace vantorel
