#include "lsp/WrittenColors.h"

#include "color/ChannelConversion.h"
#include "colortext/ByteColor.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/CSSNamedColors.h"
#include "text/ASCII.h"
#include "text/HexDigits.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantorel {
namespace {

struct FormRow {
    CSSColorForm form;
    ColorSpace space;
    std::string_view name;
};

/// The forms in the order in which they are offered.
constexpr std::array formRows{
    FormRow{CSSColorForm::hex, ColorSpace::srgb, "hex"},
    FormRow{CSSColorForm::rgb, ColorSpace::srgb, "rgb"},
    FormRow{CSSColorForm::hsl, ColorSpace::hsl, "hsl"},
    FormRow{CSSColorForm::hwb, ColorSpace::hwb, "hwb"},
    FormRow{CSSColorForm::oklch, ColorSpace::oklch, "oklch"},
    FormRow{CSSColorForm::oklab, ColorSpace::oklab, "oklab"},
    FormRow{CSSColorForm::lch, ColorSpace::lch, "lch"},
    FormRow{CSSColorForm::lab, ColorSpace::lab, "lab"},
    FormRow{CSSColorForm::color, ColorSpace::displayP3, "display-p3"},
};

HostColor::Components componentsOf(const HostColor& color)
{
    return color.calibratedRGB().value_or(HostColor::Components{});
}

/// Returns "rgb(255 128 0 / 0.5)", without commas.
std::string spacedRgb(const HostColor& color)
{
    std::u16string text = rgbText(color.colorWithAlphaComponent(1)).value_or(u"");
    std::erase(text, u',');
    return utf8FromUtf16(rgbTextWithAlpha(std::move(text), color.alphaComponent()));
}

/// Returns "hsla(30, 100%, 50%, 0.5)" for "hsl(30 100% 50% / 0.5)".
std::string withCommas(std::string text)
{
    const std::size_t slash = text.find(" / ");
    if (slash != std::string::npos) text.replace(slash, 3, " ").insert(3, "a");
    for (std::size_t place = text.find(' '); place != std::string::npos;
         place = text.find(' ', place + 2)) {
        text.insert(place, ",");
    }
    return text;
}

std::string rowText(const FormRow& row, const HostColor& color, const CSSColorValue& value)
{
    switch (row.form) {
        case CSSColorForm::rgb:
            return utf8FromUtf16(rgbText(color).value_or(u""));
        case CSSColorForm::hsl:
            return utf8FromUtf16(hslText(color).value_or(u""));
        case CSSColorForm::hwb:
            return utf8FromUtf16(cssTextIn(row.space, cssValueOf(color)));
        default:
            return utf8FromUtf16(cssTextIn(row.space, value));
    }
}

/// Whether each of a code's bytes has two equal digits. The "#" is left out.
bool canBeShort(std::string_view digits)
{
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        if (digits[i] != digits[i + 1]) return false;
    }
    return true;
}

std::string shortened(std::string_view code)
{
    std::string text(1, '#');
    for (std::size_t i = 1; i < code.size(); i += 2)
        text += code[i];
    return text;
}

std::optional<std::string> nameOf(const HostColor& color)
{
    const ByteColor bytes = byteColorOf(color);
    if (bytes.alpha < 1) return std::nullopt;
    const auto name = cssNameOfColor(std::uint64_t{bytes.red} << 16 |
                                     std::uint64_t{bytes.green} << 8 | bytes.blue);
    return name ? std::optional(utf8FromUtf16(*name)) : std::nullopt;
}

}  // namespace

bool areSameColors(const HostColor& first, const HostColor& second)
{
    constexpr double tolerance = 2e-5;
    const auto left = componentsOf(first);
    const auto right = componentsOf(second);
    return std::abs(left.red - right.red) < tolerance &&
           std::abs(left.green - right.green) < tolerance &&
           std::abs(left.blue - right.blue) < tolerance &&
           std::abs(left.alpha - right.alpha) < tolerance;
}

bool WrittenColors::needsPoundSign() const
{
    return isStyleSheet(_document.language()) || isMarkup(_document.language()) ||
           _document.language() == DocumentLanguage::script || _settings.usePoundSign();
}

std::string WrittenColors::hex(const HostColor& color, bool hasPoundSign) const
{
    std::string text = utf8FromUtf16(hexText(color).value_or(u"#"));
    if (_settings.entryForm() == EntryForm::uppercase) text = upperCased(std::move(text));
    return hasPoundSign ? text : text.substr(1);
}

/// Returns 0xRRGGBB, or 0xAARRGGBB for a colour that is not opaque or if there was an alpha before.
std::string WrittenColors::hexNumber(const HostColor& color, bool hasAlpha) const
{
    const HexCase letters =
        _settings.entryForm() == EntryForm::uppercase ? HexCase::upper : HexCase::lower;
    const ByteColor bytes = byteColorOf(color);
    std::string text = "0x";
    const std::uint8_t alpha = nearestByte(bytes.alpha);
    if (hasAlpha || alpha != 0xFF) appendHexByte(text, alpha, letters);
    for (const std::uint8_t byte : {bytes.red, bytes.green, bytes.blue})
        appendHexByte(text, byte, letters);
    return text;
}

std::string WrittenColors::textInForm(CSSColorForm form, const HostColor& color) const
{
    if (form == CSSColorForm::named) {
        if (auto name = nameOf(color)) return *name;
    }
    const auto* const row = std::ranges::find(formRows, form, &FormRow::form);
    if (row == formRows.end() || form == CSSColorForm::hex) return hex(color, needsPoundSign());
    return rowText(*row, color, cssValueOf(color));
}

/// Returns a text in the form of a text of CSS, with commas and short codes as there.
std::string WrittenColors::formLike(std::string_view written, CSSColorForm form,
                                    const HostColor& color) const
{
    if (form == CSSColorForm::hex) {
        std::string code = hex(color, true);
        const bool wasShort = written.size() <= 5;
        return wasShort && canBeShort(std::string_view(code).substr(1)) ? shortened(code) : code;
    }
    if (form == CSSColorForm::color) {
        const auto reading = readCSSColor(written);
        const ColorSpace space = reading ? reading->value.space : ColorSpace::displayP3;
        return utf8FromUtf16(cssTextIn(space, cssValueOf(color)));
    }
    const bool hasCommas = written.find(',') != std::string_view::npos;
    if (form == CSSColorForm::rgb && !hasCommas) return spacedRgb(color);
    std::string text = textInForm(form, color);
    return form == CSSColorForm::hsl && hasCommas ? withCommas(std::move(text)) : text;
}

std::string WrittenColors::textLike(const OpenDocument::Found& written,
                                    const HostColor& color) const
{
    const std::string_view text = written.range.in(_document.text());
    switch (written.color.form) {
        case WrittenForm::hexNumber:
            return hexNumber(color, text.size() > 8);
        case WrittenForm::snippet:
            return utf8FromUtf16(
                _document.snippets()->snippets()[written.color.snippet].codeSnippetWithColorSpec(
                    byteColorOf(color).spec()));
        case WrittenForm::variable:
            return textInForm(CSSColorForm::hex, color);
        case WrittenForm::css:
            break;
    }
    return formLike(text, written.color.cssForm, color);
}

/// Returns the colour in the space in which it is written, if it is still that colour: forms of
/// wide gamuts are computed from what is written, not from what is shown.
CSSColorValue WrittenColors::wideValue(const HostColor& color,
                                       const std::optional<OpenDocument::Found>& written) const
{
    const bool isWritten = written && written->color.form == WrittenForm::css &&
                           !written->color.usesVariables &&
                           areSameColors(color, written->color.color);
    if (isWritten) {
        if (const auto reading = readCSSColor(written->range.in(_document.text())))
            return reading->value;
    }
    return cssValueOf(color);
}

std::vector<WrittenColors::Text> WrittenColors::formsOf(const HostColor& color,
                                                        const CSSColorValue& value) const
{
    std::vector<Text> texts;
    for (const FormRow& row : formRows) {
        const bool isHex = row.form == CSSColorForm::hex;
        texts.push_back({std::string(row.name),
                         isHex ? hex(color, needsPoundSign()) : rowText(row, color, value)});
    }
    if (auto name = nameOf(color)) texts.push_back({"name", *std::move(name)});
    return texts;
}

std::vector<WrittenColors::Text> WrittenColors::forms(const HostColor& color,
                                                      const OpenDocument::Found& written) const
{
    return formsOf(color, wideValue(color, written));
}

std::vector<WrittenColors::Text> WrittenColors::texts(
    const HostColor& color, TextRange range, std::span<const QTXCodeSnippet> snippets) const
{
    std::vector<Text> texts;
    const auto add = [&](std::string form, std::string text) {
        const bool isKnown = std::ranges::find(texts, text, &Text::text) != texts.end();
        if (!isKnown && !text.empty()) texts.push_back({std::move(form), std::move(text)});
    };
    const auto written = _document.colorWithRange(range);
    if (written) {
        const bool isSame = areSameColors(color, written->color.color);
        add("", isSame ? std::string(range.in(_document.text())) : textLike(*written, color));
        if (written->color.form == WrittenForm::hexNumber) add("0x", hexNumber(color, false));
    }
    for (Text& form : formsOf(color, wideValue(color, written)))
        add(std::move(form.form), std::move(form.text));
    const auto spec = byteColorOf(color).spec();
    for (const QTXCodeSnippet& snippet : snippets) {
        add(utf8FromUtf16(snippet.nameSnippet().value_or(u"")),
            utf8FromUtf16(snippet.codeSnippetWithColorSpec(spec)));
    }
    return texts;
}

CSSColorForm WrittenColors::mostFrequentForm() const
{
    std::array<std::size_t, 12> counts{};
    _document.colors().forEachColor([&](const DocumentColor& color, TextRange) {
        if (color.form == WrittenForm::css && color.cssForm != CSSColorForm::named &&
            color.cssForm != CSSColorForm::mix) {
            ++counts.at(static_cast<std::size_t>(color.cssForm));
        }
    });
    const auto* const most = std::ranges::max_element(counts);
    return *most == 0 ? CSSColorForm::hex : static_cast<CSSColorForm>(most - counts.begin());
}

}  // namespace vantorel
