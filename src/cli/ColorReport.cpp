#include "cli/ColorReport.h"

#include "cli/Failure.h"
#include "cli/Terminal.h"
#include "csscolor/CSSColorWriter.h"
#include "listformats/Json.h"
#include "result/HarmlessLine.h"
#include "text/HexDigits.h"
#include "text/Unicode.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace vantorel {
namespace {

constexpr std::array displays{
    std::pair{ComponentDisplay::hex, "Hex"},
    std::pair{ComponentDisplay::integer, "Integer"},
    std::pair{ComponentDisplay::fraction, "Fraction"},
};

int alphaByte(const ByteColor& color)
{
    return static_cast<int>(std::lround(color.alpha * 255));
}

std::string utf8(const std::optional<std::u16string>& text)
{
    return utf8FromUtf16(text.value_or(u""));
}

std::array<std::string, 3> componentTexts(const QTXHexColorSpec& spec, EntryForm form,
                                          ComponentDisplay display)
{
    return {utf8(spec.redStringHexColorSpecWithEntryForm(form, display)),
            utf8(spec.greenStringHexColorSpecWithEntryForm(form, display)),
            utf8(spec.blueStringHexColorSpecWithEntryForm(form, display))};
}

/// Returns the shortest decimal number that is read back as the same value.
std::string numberText(double number)
{
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

/// Two digits of each byte, in both letter cases, and the decimal text of each byte with its
/// length.
struct ByteTexts {
    std::array<std::array<char, 2>, 256> upperHex{};
    std::array<std::array<char, 2>, 256> lowerHex{};
    std::array<std::array<char, 3>, 256> decimal{};
    std::array<std::uint8_t, 256> decimalLength{};
};

constexpr ByteTexts makeByteTexts()
{
    constexpr std::string_view upper = hexDigits(HexCase::upper);
    constexpr std::string_view lower = hexDigits(HexCase::lower);
    ByteTexts texts;
    for (std::size_t i = 0; i < 256; ++i) {
        texts.upperHex[i] = {upper[i >> 4], upper[i & 15]};
        texts.lowerHex[i] = {lower[i >> 4], lower[i & 15]};
        std::size_t length = 0;
        if (i >= 100) texts.decimal[i][length++] = static_cast<char>('0' + i / 100);
        if (i >= 10) texts.decimal[i][length++] = static_cast<char>('0' + i / 10 % 10);
        texts.decimal[i][length++] = static_cast<char>('0' + i % 10);
        texts.decimalLength[i] = static_cast<std::uint8_t>(length);
    }
    return texts;
}

constexpr ByteTexts byteTexts = makeByteTexts();

const auto& hexTexts(EntryForm form)
{
    return form == EntryForm::uppercase ? byteTexts.upperHex : byteTexts.lowerHex;
}

char* appendDecimal(char* place, std::uint8_t byte)
{
    std::memcpy(place, byteTexts.decimal[byte].data(), 3);
    return place + byteTexts.decimalLength[byte];
}

char* appendLiteral(char* place, std::string_view text)
{
    std::memcpy(place, text.data(), text.size());
    return place + text.size();
}

}  // namespace

std::string hexTextOf(const ByteColor& color, const ReportForm& form)
{
    const auto& digits = hexTexts(form.entryForm);
    std::string text = form.poundSign ? "#" : "";
    for (const std::uint8_t byte : {color.red, color.green, color.blue})
        text.append(digits[byte].data(), 2);
    if (const int alpha = alphaByte(color); alpha != 255)
        text.append(digits[static_cast<std::size_t>(alpha)].data(), 2);
    return text;
}

std::string ratioText(double ratio)
{
    const auto hundredths = static_cast<int>(std::floor(ratio * 100 + 1e-9));
    const std::string digits = std::to_string(hundredths % 100);
    return std::to_string(hundredths / 100) + "." + (digits.size() < 2 ? "0" : "") + digits;
}

std::string reportOf(const ByteColor& color, const ReportForm& form)
{
    const QTXHexColorSpec spec = color.spec();
    const HostColor host = color.hostColor();
    std::string report = form.swatches ? swatchOf(color) : "";
    report += "hex: " + hexTextOf(color, form) + '\n';
    report += "rgb: " + utf8(rgbText(host)) + '\n';
    report += "hsl: " + utf8(hslText(host)) + '\n';
    report += "oklch: " + utf8(oklchText(host)) + '\n';
    report += "components:\n";
    for (const auto& [display, name] : displays) {
        const auto texts = componentTexts(spec, form.entryForm, display);
        report.append("  ").append(name).append(": ");
        report += texts[0] + ' ' + texts[1] + ' ' + texts[2] + '\n';
    }
    if (form.namer != nullptr) {
        const std::u16string title = form.namer->title(form.namer->match(spec));
        report += "name (" + harmlessLine(utf8FromUtf16(form.namer->list().name())) +
                  "): " + harmlessLine(utf8FromUtf16(title)) + '\n';
    }
    if (!form.snippets.empty()) report += "snippets:\n";
    for (const QTXCodeSnippet& snippet : form.snippets) {
        report += "  " + harmlessLine(utf8(snippet.nameSnippet())) + ": " +
                  harmlessLine(utf8FromUtf16(snippet.codeSnippetWithColorSpec(spec))) + '\n';
    }
    return report;
}

void appendJsonName(std::string& json, const std::u16string& listName,
                    const PaletteNameMatch& match)
{
    json += '{';
    appendJsonKey(json, "list");
    appendJson(json, listName);
    appendJsonKey(json, "exact");
    if (match.exact) {
        appendJson(json, *match.exact);
    } else {
        json += "null";
    }
    appendJsonKey(json, "close");
    json += '[';
    for (const std::u16string& name : match.close) {
        if (!json.ends_with('[')) json += ',';
        appendJson(json, name);
    }
    json += "]}";
}

std::string jsonReportOf(const ByteColor& color, const ReportForm& form)
{
    const QTXHexColorSpec spec = color.spec();
    const HostColor host = color.hostColor();
    std::string json = "{";
    const auto text = [&](std::string_view key, const std::string& value) {
        appendJsonKey(json, key);
        appendJson(json, std::string_view(value));
    };
    const auto raw = [&](std::string_view key, const std::string& value) {
        appendJsonKey(json, key);
        json += value;
    };
    text("hex", hexTextOf(color, form));
    text("rgb", utf8(rgbText(host)));
    text("hsl", utf8(hslText(host)));
    text("oklch", utf8(oklchText(host)));
    raw("red", std::to_string(color.red));
    raw("green", std::to_string(color.green));
    raw("blue", std::to_string(color.blue));
    raw("alpha", numberText(color.alpha));
    raw("outsideSRGB", color.wasOutsideSRGB ? "true" : "false");
    raw("components", "{");
    for (const auto& [display, name] : displays) {
        raw(name, "[");
        for (const std::string& component : componentTexts(spec, form.entryForm, display)) {
            if (!json.ends_with('[')) json += ',';
            appendJson(json, std::string_view(component));
        }
        json += ']';
    }
    json += '}';
    raw("name", form.namer == nullptr ? "null" : "");
    if (form.namer != nullptr)
        appendJsonName(json, form.namer->list().name(), form.namer->names(spec));
    raw("snippets", "[");
    for (const QTXCodeSnippet& snippet : form.snippets) {
        json += json.ends_with('[') ? "{" : ",{";
        text("name", utf8(snippet.nameSnippet()));
        text("text", utf8FromUtf16(snippet.codeSnippetWithColorSpec(spec)));
        json += '}';
    }
    return json + "]}";
}

std::string lineOf(const ByteColor& color, const ReportForm& form)
{
    std::string line = form.swatches ? swatchOf(color) : "";
    line += hexTextOf(color, form) + '\t' + utf8(rgbText(color.hostColor()));
    if (form.namer != nullptr) {
        const std::u16string title = form.namer->title(form.namer->match(color.spec()));
        line += '\t' + harmlessLine(utf8FromUtf16(title));
    }
    return line;
}

char* writePlainLine(char* place, const ByteColor& color, EntryForm entryForm, bool poundSign)
{
    const auto& hex = hexTexts(entryForm);
    if (poundSign) *place++ = '#';
    std::memcpy(place, hex[color.red].data(), 2);
    std::memcpy(place + 2, hex[color.green].data(), 2);
    std::memcpy(place + 4, hex[color.blue].data(), 2);
    place = appendLiteral(place + 6, "\trgb(");
    place = appendDecimal(place, color.red);
    place = appendLiteral(place, ", ");
    place = appendDecimal(place, color.green);
    place = appendLiteral(place, ", ");
    place = appendDecimal(place, color.blue);
    return appendLiteral(place, ")\n");
}

}  // namespace vantorel
