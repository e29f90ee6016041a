#include "listformats/OfficeColorTable.h"

#include "colortext/ByteColor.h"
#include "listformats/XmlTags.h"
#include "text/Unicode.h"

namespace vantorel {

std::string officeColorTable(const HostColorList& list)
{
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<ooo:color-table xmlns:draw=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\""
        " xmlns:ooo=\"http://openoffice.org/2004/office\">\n";
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        text += "  <draw:color draw:name=\"" + xmlAttributeText(list.allKeys()[i]) +
                "\" draw:color=\"" + opaqueHexText(list.colorAtIndex(i)) + "\"/>\n";
    }
    return text + "</ooo:color-table>\n";
}

std::optional<ListContents> readOfficeColorTable(std::string_view text)
{
    XmlTags tags(text);
    const auto root = tags.next();
    if (!root || root->name != "color-table") return std::nullopt;
    ListContents contents;
    while (const auto tag = tags.next()) {
        if (tag->isEnd || tag->name != "color") continue;
        const std::string_view code = tag->attribute("color");
        const auto color = code.starts_with('#') ? listColorOf(code) : std::nullopt;
        if (color) {
            contents.entries.emplace_back(*color, utf16FromUtf8(tag->attribute("name")));
        } else {
            ++contents.skipped;
        }
    }
    return contents;
}

}  // namespace vantorel
