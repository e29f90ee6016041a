#include "colortext/ColorTextReader.h"

#include "color/ColorTexts.h"
#include "color/RgbTriple.h"
#include "csscolor/CSSColorReader.h"
#include "host/HostText.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr int fullDigits = 6;

char16_t lowerCase(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}

bool isSameIgnoringCase(std::u16string_view left, std::u16string_view right)
{
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [](char16_t a, char16_t b) { return lowerCase(a) == lowerCase(b); });
}

std::u16string trimmed(const std::u16string& text)
{
    constexpr std::u16string_view blanks = u" \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::u16string::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

constexpr std::array<std::uint8_t, 256> tableOfDigits()
{
    std::array<std::uint8_t, 256> table{};
    table.fill(0xFF);
    for (std::uint8_t i = 0; i < 10; ++i)
        table[std::size_t{'0'} + i] = i;
    for (std::uint8_t i = 0; i < 6; ++i) {
        table[std::size_t{'a'} + i] = static_cast<std::uint8_t>(10 + i);
        table[std::size_t{'A'} + i] = static_cast<std::uint8_t>(10 + i);
    }
    return table;
}

}  // namespace

constinit const std::array<std::uint8_t, 256> hexDigitValues = tableOfDigits();

ColorTextReading ColorTextReader::read(std::string_view utf8)
{
    if (const auto plain = readPlainHex(utf8)) return {plain, {}};
    const std::u16string text = utf16FromUtf8(utf8);
    CSSColorReading css = readCSSColor(std::u16string_view(text));
    if (css.color) {
        ByteColor color = byteColorOf(css.color->color);
        color.wasOutsideSRGB = css.color->wasOutsideSRGB;
        return {color, {}};
    }
    const std::u16string name = trimmed(text);
    if (const auto hex = validHexString(name, fullDigits)) {
        QTXHexColorSpec spec;
        spec.setWithString(*hex);
        return {byteColorOf(spec.colorHexColorSpec()), {}};
    }
    // A name of the list before the triple: a name may hold anything.
    if (const auto named = colorInList(name)) return {byteColorOf(*named), {}};
    if (const auto triple = readRgbTriple(text); triple.components) {
        const auto& [red, green, blue] = *triple.components;
        return {ByteColor{static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                          static_cast<std::uint8_t>(blue)},
                {}};
    }
    return {std::nullopt, utf8FromUtf16(css.error)};
}

/// By its exact name, else by the first that differs in letter case alone.
std::optional<HostColor> ColorTextReader::colorInList(const std::u16string& name)
{
    if (name.empty()) return std::nullopt;
    if (!_hasList) _list = _findList();
    _hasList = true;
    if (!_list) return std::nullopt;
    if (auto color = _list->colorWithKey(name)) return color;
    const auto& keys = _list->allKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const std::u16string& key) {
        return isSameIgnoringCase(key, name);
    });
    if (found == keys.end()) return std::nullopt;
    return _list->colorAtIndex(static_cast<std::size_t>(found - keys.begin()));
}

}  // namespace vantorel
