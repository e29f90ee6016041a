#include "listformats/ListFormats.h"

#include "colorlists/PaletteFile.h"
#include "listformats/ListTexts.h"
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
constexpr std::string_view swatchEndings[] = {"ase"};
constexpr std::string_view svgEndings[] = {"svg"};
constexpr std::string_view textEndings[] = {"txt"};

constexpr ListFormat formats[] = {
    {"gpl", "palette of graphics programs", paletteEndings, false, true, paletteText},
    {"css", "custom properties", cssEndings, false, true, cssText},
    {"scss", "variables", scssEndings, false, true, scssText},
    {"json", {}, jsonEndings, false, true, jsonText},
    {"ase", "swatch exchange, binary", swatchEndings, true, true, swatchExchangeBytes},
    {"svg", "a picture with names", svgEndings, false, false, pictureOf},
    {"txt", {}, textEndings, false, true, plainText},
};

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
    const std::size_t dot = fileName.rfind('.');
    if (dot == std::string_view::npos) return nullptr;
    const std::string_view ending = fileName.substr(dot + 1);
    const auto hasEnding = [&](const ListFormat& format) {
        return std::ranges::any_of(
            format.endings, [&](std::string_view each) { return equalIgnoringCase(ending, each); });
    };
    const auto* const found = std::ranges::find_if(formats, hasEnding);
    return found != std::end(formats) ? found : nullptr;
}

}  // namespace vantorel
