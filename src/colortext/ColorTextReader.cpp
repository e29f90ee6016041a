#include "colortext/ColorTextReader.h"

#include "color/ColorTexts.h"
#include "color/RgbTriple.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr int fullDigits = 6;

std::u16string_view withoutSurroundings(std::u16string_view text)
{
    return trimmed(text, [](char16_t c) { return isBlank(c) || c == u'\r'; });
}

}  // namespace

Result<ByteColor> ColorTextReader::read(std::string_view utf8)
{
    if (const auto plain = readPlainHex(utf8)) return *plain;
    const std::u16string text = utf16FromUtf8(utf8);
    Result<CSSColor> css = readCSSColor(std::u16string_view(text), _theme);
    if (css) {
        ByteColor color = byteColorOf(css->color);
        color.wasOutsideSRGB = css->wasOutsideSRGB;
        return color;
    }
    const std::u16string name(withoutSurroundings(text));
    if (const auto hex = validHexString(name, fullDigits)) {
        QTXHexColorSpec spec;
        spec.setWithString(*hex);
        return byteColorOf(spec.colorHexColorSpec());
    }
    // Names are looked up before triples, because a name can contain anything.
    if (const auto named = colorInList(name)) return byteColorOf(*named);
    if (startsCSSColorFunction(name)) return std::move(css).error();
    if (const auto triple = readRgbTriple(text); triple.components) {
        const auto& [red, green, blue] = *triple.components;
        return ByteColor{static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                         static_cast<std::uint8_t>(blue)};
    }
    return std::move(css).error();
}

/// Returns the colour with exactly this name, or else the first whose name differs only in case.
std::optional<HostColor> ColorTextReader::colorInList(const std::u16string& name)
{
    if (name.empty()) return std::nullopt;
    if (!_hasList) _list = _findList();
    _hasList = true;
    if (!_list) return std::nullopt;
    if (auto color = _list->colorWithKey(name)) return color;
    const auto& keys = _list->allKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const std::u16string& key) {
        return equalIgnoringCase(std::u16string_view(key), std::u16string_view(name));
    });
    if (found == keys.end()) return std::nullopt;
    return _list->colorAtIndex(static_cast<std::size_t>(found - keys.begin()));
}

}  // namespace vantorel
