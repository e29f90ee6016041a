#include "listformats/Svg.h"

#include "colortext/ByteColor.h"
#include "csscolor/CSSColorWriter.h"
#include "result/HarmlessLine.h"
#include "text/Decimals.h"
#include "text/Unicode.h"
#include "view/ViewColors.h"

#include <algorithm>

namespace vantorel {

std::string svgNumber(double value)
{
    return shortFixedText(value, 3);
}

std::string svgColor(const HostColor& color)
{
    return opaqueHexText(color);
}

std::string svgText(const std::u16string& text)
{
    std::u16string allowed = text;
    std::replace_if(
        allowed.begin(), allowed.end(), [](char16_t c) { return c >= 0xFFFE; }, u'\uFFFD');
    std::string result;
    for (const char c : harmlessLine(utf8FromUtf16(allowed))) {
        if (c == '&') {
            result += "&amp;";
        } else if (c == '<') {
            result += "&lt;";
        } else if (c == '>') {
            result += "&gt;";
        } else {
            result += c;
        }
    }
    return result;
}

std::string svgOpening(HostSize size, const std::string& title)
{
    const std::string width = svgNumber(size.width);
    const std::string height = svgNumber(size.height);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + " " + height +
           "\">\n<title>" + title + "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"" +
           svgColor(hexColorsViewBackgroundColorS) +
           "\"/>\n"
           // Without this, the background would shine through the common edges of neighbours.
           "<g shape-rendering=\"crispEdges\">\n";
}

}  // namespace vantorel
