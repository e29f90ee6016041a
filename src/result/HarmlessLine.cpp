#include "result/HarmlessLine.h"

#include "text/Unicode.h"

namespace vantorel {

std::string harmlessLine(std::string_view utf8)
{
    std::u16string text = utf16FromUtf8(utf8);
    for (char16_t& c : text) {
        // Some terminals also interpret the control characters from U+0080 on.
        if (c < 0x20 || (c >= 0x7F && c < 0xA0)) c = u' ';
    }
    return utf8FromUtf16(text);
}

std::string excerpt(std::string_view utf8, std::size_t mostBytes)
{
    if (utf8.size() <= mostBytes) return std::string(utf8);
    const auto isContinuation = [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
    };
    std::size_t end = mostBytes;
    while (end > 0 && isContinuation(utf8[end]))
        --end;
    return std::string(utf8.substr(0, end)) + "...";
}

std::u16string excerpt(std::u16string_view text, std::size_t mostUnits)
{
    if (text.size() <= mostUnits) return std::u16string(text);
    const bool endsInHighSurrogate = mostUnits > 0 && (text[mostUnits - 1] & 0xFC00) == 0xD800;
    return std::u16string(text.substr(0, mostUnits - (endsInHighSurrogate ? 1 : 0))) + u"...";
}

}  // namespace vantorel
