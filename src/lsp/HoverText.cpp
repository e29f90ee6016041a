#include "lsp/HoverText.h"

#include "colortext/ByteColor.h"
#include "commandline/Translations.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/Contrast.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace vantorel {
namespace {

std::string base64(std::string_view bytes)
{
    constexpr std::string_view digits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t place = 0; place < bytes.size(); place += 3) {
        const std::string_view group = bytes.substr(place, 3);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 3; ++i)
            bits = bits << 8 | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        for (std::size_t i = 0; i < 4; ++i)
            text += i <= group.size() ? digits[bits >> (18 - 6 * i) & 63] : '=';
    }
    return text;
}

/// Returns a picture of the colour on squares that show its opacity.
std::string picture(const HostColor& color)
{
    const std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"96\" height=\"32\">"
        "<path fill=\"#fff\" d=\"M0 0h96v32H0z\"/>"
        "<path fill=\"#bbb\" d=\"M0 0h16v16H0zM16 16h16v16H16zM32 0h16v16H32zM48 16h16v16H48z"
        "M64 0h16v16H64zM80 16h16v16H80z\"/><path fill=\"" +
        opaqueHexText(color) + "\" fill-opacity=\"" + std::to_string(color.alphaComponent()) +
        "\" d=\"M0 0h96v32H0z\"/></svg>";
    return "![](data:image/svg+xml;base64," + base64(svg) + ")\n\n";
}

/// Makes a text safe to show as Markdown, on one line.
std::string escaped(std::string_view text)
{
    constexpr std::string_view special = "\\`*_{}[]<>()#+-.!|&~:";
    std::string result;
    for (const char c : harmlessLine(text)) {
        if (special.find(c) != std::string_view::npos) result += '\\';
        result += c;
    }
    return result;
}

/// Truncated to two decimals, because a ratio that only rounds to a limit does not reach it.
std::string ratioText(const HostColor& first, const HostColor& second)
{
    const double ratio = contrastRatio(first, second).value_or(1);
    const auto hundredths = static_cast<int>(std::floor(ratio * 100 + 1e-9));
    const std::string digits = std::to_string(hundredths % 100);
    return std::to_string(hundredths / 100) + (digits.size() < 2 ? ".0" : ".") + digits;
}

std::string nameText(const HostColor& color, const ListNames& names, bool isMarkdown)
{
    const auto name = names.nearest(color);
    if (!name) return {};
    const std::string text = inUsersWords(
        name->isExact ? phrase("%1 (%2)", name->name, names.list().name())
                      : phrase("Closest name: %1 (%2)", name->name, names.list().name()));
    return "\n" + (isMarkdown ? escaped(text) : harmlessLine(text)) + "\n";
}

}  // namespace

std::string hoverText(const OpenDocument::Found& found, const WrittenColors& writer,
                      const ListNames* names, const ClientAbilities& client)
{
    const HostColor& color = found.color.color;
    const bool isMarkdown = client.takesMarkdown;
    std::string text = client.showsPictures ? picture(color) : "";
    if (isMarkdown) text += "```css\n";
    for (const WrittenColors::Text& form : writer.forms(color, found))
        text += form.text + "\n";
    if (isMarkdown) text += "```\n";
    if (names != nullptr) text += nameText(color, *names, isMarkdown);
    const std::string contrast = inUsersWords(phrase("Contrast with white %1, with black %2",
                                                     ratioText(color, HostColor::whiteColor()),
                                                     ratioText(color, HostColor::blackColor())));
    return text + "\n" + (isMarkdown ? escaped(contrast) : contrast) + "\n";
}

}  // namespace vantorel
