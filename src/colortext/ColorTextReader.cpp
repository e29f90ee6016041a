#include "colortext/ColorTextReader.h"

#include "color/ColorTexts.h"
#include "color/RgbTriple.h"
#include "colortext/ColorInCode.h"
#include "colortext/ListedName.h"
#include "csscolor/CSSNamedColors.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr int fullDigits = 6;

std::u16string_view withoutSurroundings(std::u16string_view text)
{
    return trimmed(text, [](char16_t c) { return isBlank(c) || c == u'\r'; });
}

/// Returns the colour of a text that is nothing but one of the 148 names of CSS. No such name
/// consists of hex digits only, so it cannot be a code without "#".
std::optional<ByteColor> colorOfCSSName(std::string_view text)
{
    const auto value = cssNamedColor(text);
    if (!value) return std::nullopt;
    const auto byte = [&](unsigned shift) { return static_cast<std::uint8_t>(*value >> shift); };
    return ByteColor{byte(16), byte(8), byte(0)};
}

}  // namespace

std::optional<ByteColor> readShortHex(std::string_view digits)
{
    if (digits.size() != 3) return std::nullopt;
    std::array<std::uint8_t, 3> doubled{};
    for (std::size_t i = 0; i < doubled.size(); ++i) {
        const auto value = hexDigitValue(digits[i]);
        if (value > 15) return std::nullopt;
        doubled[i] = static_cast<std::uint8_t>(value * 17);
    }
    return ByteColor{doubled[0], doubled[1], doubled[2]};
}

Result<ByteColor> ColorTextReader::read(std::string_view utf8)
{
    if (const auto plain = readPlainHex(utf8)) return *plain;
    if (const auto named = colorOfCSSName(utf8)) return *named;
    Result<CSSColor> css = readUnrounded(utf8);
    if (!css) return std::move(css).error();
    ByteColor color = byteColorOf(css->color);
    color.wasOutsideSRGB = css->wasOutsideSRGB;
    return color;
}

Result<CSSColor> ColorTextReader::readUnrounded(std::string_view utf8)
{
    const std::u16string text = utf16FromUtf8(utf8);
    Result<CSSColor> css = readCSSColor(std::u16string_view(text), _theme);
    if (css) return css;
    const auto other = readOtherForm(text);
    if (!other) return std::move(css).error();
    return cssColorOf(*other);
}

std::optional<HostColor> ColorTextReader::readOtherForm(std::u16string_view text)
{
    const std::u16string name(withoutSurroundings(text));
    if (const auto hex = validHexString(name, fullDigits)) {
        QTXHexColorSpec spec;
        spec.setWithString(*hex);
        return spec.colorHexColorSpec();
    }
    // Names are looked up before triples, because a name can contain anything.
    if (auto named = colorNamed(name)) return named;
    if (const SnippetReaders* snippets = _findSnippets ? _findSnippets() : nullptr) {
        if (const auto color = colorInSnippets(text, *snippets)) return color;
    }
    if (startsCSSColorFunction(name)) return std::nullopt;
    const auto triple = readRgbTriple(text);
    if (!triple.components) return std::nullopt;
    const auto& [red, green, blue] = *triple.components;
    const auto fraction = [](std::uint64_t channel) {
        return static_cast<double>(std::min<std::uint64_t>(channel, 255)) / 255;
    };
    return HostColor::colorWithCalibratedRed(fraction(red), fraction(green), fraction(blue), 1);
}

std::optional<HostColor> ColorTextReader::colorNamed(const std::u16string& name)
{
    if (name.empty()) return std::nullopt;
    if (!_hasList) _list = _findList();
    _hasList = true;
    return _list ? colorInList(*_list, name) : std::nullopt;
}

}  // namespace vantorel
