#include "listformats/ListFormats.h"

#include "colorlists/PaletteFile.h"
#include "listformats/ColorSwatches.h"
#include "listformats/DesignTokens.h"
#include "listformats/KritaPalette.h"
#include "listformats/ListTexts.h"
#include "listformats/OfficeColorTable.h"
#include "listformats/PaletteSvg.h"
#include "listformats/SwatchExchange.h"
#include "text/ASCII.h"

#include <algorithm>

namespace vantorel {
namespace {

std::string pictureOf(const HostColorList& list)
{
    return paletteSvg(list, {640, 480});
}

constexpr std::string_view paletteEndings[] = {"gpl", "colors"};
constexpr std::string_view cssEndings[] = {"css"};
constexpr std::string_view scssEndings[] = {"scss", "sass", "less"};
constexpr std::string_view jsonEndings[] = {"json"};
constexpr std::string_view tokenEndings[] = {"tokens.json", "tokens"};
constexpr std::string_view swatchEndings[] = {"ase"};
constexpr std::string_view swatchesEndings[] = {"aco"};
constexpr std::string_view kritaEndings[] = {"kpl"};
constexpr std::string_view officeEndings[] = {"soc"};
constexpr std::string_view svgEndings[] = {"svg"};
constexpr std::string_view textEndings[] = {"txt"};

constexpr ListFormat formats[] = {
    {"gpl", "palette of graphics programs", paletteEndings, false, true, paletteText},
    {"css", "custom properties", cssEndings, false, true, cssText},
    {"scss", "variables", scssEndings, false, true, scssText},
    {"json", {}, jsonEndings, false, true, jsonText},
    {"tokens", "design tokens", tokenEndings, false, true, designTokenListText},
    {"ase", "swatch exchange, binary", swatchEndings, true, true, swatchExchangeBytes},
    {"aco", "colour swatches, binary", swatchesEndings, true, true, colorSwatchesBytes,
     mostColorSwatches},
    {"kpl", "palette of Krita, binary", kritaEndings, true, true, kritaPaletteBytes},
    {"soc", "colour table of office programs", officeEndings, false, true, officeColorTable},
    {"svg", "a picture with names", svgEndings, false, false, pictureOf},
    {"txt", {}, textEndings, false, true, plainText},
};

/// A format, and how much of a file's name is its ending with the dot.
struct FormatAndEnding {
    const ListFormat* format = nullptr;
    std::size_t length = 0;
};

/// Finds the format with the longest ending of those that fit.
FormatAndEnding formatAndEnding(std::string_view fileName)
{
    FormatAndEnding found;
    for (const ListFormat& format : formats) {
        for (const std::string_view ending : format.endings) {
            if (ending.size() < found.length || fileName.size() <= ending.size()) continue;
            const std::size_t dot = fileName.size() - ending.size() - 1;
            if (fileName[dot] != '.' || !equalIgnoringCase(fileName.substr(dot + 1), ending))
                continue;
            found = {&format, ending.size() + 1};
        }
    }
    return found;
}

}  // namespace

std::span<const ListFormat> listFormats()
{
    return formats;
}

const ListFormat* listFormatNamed(std::string_view name)
{
    const auto* const found = std::ranges::find(formats, name, &ListFormat::name);
    return found != std::end(formats) ? found : nullptr;
}

const ListFormat* listFormatOfFile(std::string_view fileName)
{
    return formatAndEnding(fileName).format;
}

std::string_view withoutListEnding(std::string_view fileName)
{
    return fileName.substr(0, fileName.size() - formatAndEnding(fileName).length);
}

}  // namespace vantorel
