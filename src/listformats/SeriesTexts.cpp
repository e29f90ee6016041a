#include "listformats/SeriesTexts.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "listformats/DesignTokens.h"
#include "listformats/Json.h"
#include "text/Unicode.h"

#include <string_view>

namespace vantorel {
namespace {

std::string codeOf(const HostColor& color)
{
    return utf8FromUtf16(hexText(mappedIntoSRGB(color)).value_or(u"#000000"));
}

std::string nameOf(const ColorSeries& series, const ColorSeries::Entry& entry)
{
    return entry.label.empty() ? series.name : series.name + "-" + entry.label;
}

std::string declarations(const ColorSeries& series, std::string_view before)
{
    std::string text;
    for (const ColorSeries::Entry& entry : series.entries) {
        text += before;
        text += nameOf(series, entry) + ": " + codeOf(entry.color) + ";\n";
    }
    return text;
}

}  // namespace

std::string customPropertiesText(const ColorSeries& series)
{
    return ":root {\n" + declarations(series, "  --") + "}\n";
}

std::string scssVariablesText(const ColorSeries& series)
{
    return declarations(series, "$");
}

std::string tailwindThemeText(const ColorSeries& series)
{
    return "@theme {\n" + declarations(series, "  --color-") + "}\n";
}

std::string designTokensText(const ColorSeries& series)
{
    std::string json = "{\n  ";
    appendJson(json, series.name);
    json += ": {\n    \"$type\": \"color\"";
    for (const ColorSeries::Entry& entry : series.entries) {
        json += ",\n    ";
        appendJson(json, entry.label.empty() ? series.name : entry.label);
        json += ": {\"$value\": " + designTokenColor(mappedIntoSRGB(entry.color)) + "}";
    }
    return json + "\n  }\n}\n";
}

std::string hexCodesText(const ColorSeries& series, const HexForm& form)
{
    std::string text;
    for (const ColorSeries::Entry& entry : series.entries)
        text += utf8FromUtf16(hexText(mappedIntoSRGB(entry.color), form).value_or(u"")) + '\n';
    return text;
}

}  // namespace vantorel
