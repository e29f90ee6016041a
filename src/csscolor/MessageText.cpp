#include "csscolor/MessageText.h"

#include "text/ASCII.h"

namespace vantorel {

std::u16string joined(std::initializer_list<std::u16string_view> parts)
{
    std::u16string text;
    for (const std::u16string_view part : parts)
        text += part;
    return text;
}

std::u16string quoted(std::u16string_view text)
{
    constexpr std::size_t mostUnits = 24;
    const auto isHighSurrogate = [](char16_t c) { return c >= 0xD800 && c <= 0xDBFF; };
    const bool isLong = text.size() > mostUnits;
    if (isLong)
        text = text.substr(0, isHighSurrogate(text[mostUnits - 1]) ? mostUnits - 1 : mostUnits);
    return u'"' + withoutControls(std::u16string(text)) + (isLong ? u"...\"" : u"\"");
}

}  // namespace vantorel
