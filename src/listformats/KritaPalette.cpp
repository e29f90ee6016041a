#include "listformats/KritaPalette.h"

#include "colortext/ByteColor.h"
#include "csscolor/ColorConversions.h"
#include "listformats/BinaryNumbers.h"
#include "listformats/XmlTags.h"
#include "listformats/ZipArchive.h"
#include "text/Decimals.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vantorel {
namespace {

constexpr std::string_view colorsName = "colorset.xml";
/// A larger file of colours is rejected; no palette has as many.
constexpr std::size_t largestColors = std::size_t{64} << 20;

double component(const XmlTag& tag, std::string_view name)
{
    const std::string_view text = tag.attribute(name);
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return finiteNumber(value);
}

std::optional<HostColor> colorOfTag(const XmlTag& tag)
{
    if (tag.name == "RGB" || tag.name == "sRGB") {
        ColorTriple rgb{component(tag, "r"), component(tag, "g"), component(tag, "b")};
        const std::string_view profile = tag.attribute("space");
        const bool isLinear = profile.find("-g10") != std::string_view::npos ||
                              profile.find("inear") != std::string_view::npos;
        if (isLinear) rgb = srgbFromLinear(rgb);
        return listColorOfSRGB(rgb[0], rgb[1], rgb[2]);
    }
    if (tag.name == "Gray") {
        const double grey = component(tag, "g");
        return listColorOfSRGB(grey, grey, grey);
    }
    if (tag.name == "CMYK") {
        return listColorOfCMYK(component(tag, "c"), component(tag, "m"), component(tag, "y"),
                               component(tag, "k"));
    }
    if (tag.name == "Lab")
        return listColorOfLab(component(tag, "L"), component(tag, "a"), component(tag, "b"));
    return std::nullopt;
}

ListContents colorsIn(std::string_view xml)
{
    ListContents contents;
    /// Of the entry that is open; not the colours of anything else.
    std::optional<std::u16string> name;
    std::optional<HostColor> color;
    XmlTags tags(xml);
    while (const auto tag = tags.next()) {
        if (tag->name == "ColorSet" && !tag->isEnd && contents.name.empty()) {
            contents.name = utf16FromUtf8(tag->attribute("name"));
        } else if (tag->name == "ColorSetEntry") {
            if (tag->isEnd && name) {
                if (color)
                    contents.entries.emplace_back(*color, *name);
                else
                    ++contents.skipped;
            }
            name.reset();
            color.reset();
            if (!tag->isEnd) name = utf16FromUtf8(tag->attribute("name"));
        } else if (name && !color && !tag->isEnd) {
            color = colorOfTag(*tag);
        }
    }
    return contents;
}

}  // namespace

std::string kritaPaletteBytes(const HostColorList& list)
{
    constexpr std::size_t columns = 16;
    const std::size_t count = list.allKeys().size();
    const std::size_t rows = std::max<std::size_t>(1, (count + columns - 1) / columns);
    std::string xml = "<ColorSet version=\"2.0\" comment=\"\" readonly=\"false\" columns=\"" +
                      std::to_string(columns) + "\" rows=\"" + std::to_string(rows) + "\" name=\"" +
                      xmlAttributeText(list.name()) + "\">\n";
    for (std::size_t i = 0; i < count; ++i) {
        const ByteColor color = byteColorOf(list.colorAtIndex(i));
        const auto channel = [](std::uint8_t byte) { return shortFixedText(byte / 255.0, 6); };
        xml += " <ColorSetEntry spot=\"false\" bitdepth=\"U8\" id=\"" + std::to_string(i) +
               "\" name=\"" + xmlAttributeText(list.allKeys()[i]) +
               "\">\n  <RGB space=\"sRGB-elle-V2-srgbtrc.icc\" r=\"" + channel(color.red) +
               "\" g=\"" + channel(color.green) + "\" b=\"" + channel(color.blue) +
               "\"/>\n  <Position row=\"" + std::to_string(i / columns) + "\" column=\"" +
               std::to_string(i % columns) + "\"/>\n </ColorSetEntry>\n";
    }
    xml += "</ColorSet>\n";
    const std::array<std::pair<std::string, std::string>, 3> files{
        {{"mimetype", "application/x-krita-palette"},
         {"profiles.xml", "<Profiles/>\n"},
         {std::string(colorsName), std::move(xml)}}};
    return zipArchive(files);
}

bool startsKritaPalette(std::string_view bytes)
{
    using namespace std::string_view_literals;
    return bytes.starts_with("PK\3\4"sv);
}

Result<ListContents> readKritaPalette(std::string_view bytes)
{
    const auto xml = fileInZip(bytes, colorsName, largestColors);
    if (!xml) {
        return Message{phrase("it is an archive without the colours of a palette, or damaged"),
                       phrase("give a complete palette of Krita")};
    }
    return colorsIn(*xml);
}

}  // namespace vantorel
