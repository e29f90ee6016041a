#include "listformats/ListReader.h"

#include "colorlists/KeyedEntries.h"
#include "colorlists/PaletteFile.h"
#include "listformats/ColorLinesReader.h"
#include "listformats/ColorSwatches.h"
#include "listformats/DesignTokens.h"
#include "listformats/JsonListReader.h"
#include "listformats/KritaPalette.h"
#include "listformats/ListFormats.h"
#include "listformats/OfficeColorTable.h"
#include "listformats/StyleSheetReader.h"
#include "listformats/SwatchExchange.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

std::string_view baseName(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

std::u16string nameFromFile(std::string_view fileName)
{
    const std::string_view base = baseName(fileName);
    if (const std::string_view name = withoutListEnding(base); name != base && !name.empty())
        return utf16FromUtf8(name);
    return utf16FromUtf8(
        base.substr(0, base.rfind('.') == 0 ? std::string_view::npos : base.rfind('.')));
}

Result<ListFile> listOf(const ListContents& contents, const std::string& fileName)
{
    if (contents.entries.empty()) {
        return Message{phrase("it contains no colours"),
                       phrase("give a file in any format of \"export\" except svg")};
    }
    ListFile file{std::make_shared<HostColorList>(contents.name.empty() ? nameFromFile(fileName)
                                                                        : contents.name),
                  contents.skipped};
    KeyedEntries entries(*file.list);
    for (const auto& [color, name] : contents.entries)
        entries.add(color, name);
    return file;
}

}  // namespace

Result<ListFile> readColorList(std::string_view bytes, const std::string& fileName)
{
    const std::u16string fallbackName = nameFromFile(fileName);
    if (const auto palette = readPalette(bytes, fallbackName)) {
        if (palette->list->allKeys().empty())
            return Message{phrase("it is a palette without colours"),
                           phrase("give one with rows \"R G B NAME\"")};
        return ListFile{palette->list, palette->skipped.size() + palette->furtherSkippedLines};
    }
    if (bytes.starts_with("ASEF")) {
        const auto swatches = readSwatchExchange(bytes, fallbackName);
        if (!swatches) return Message{phrase("it is truncated"), phrase("give the complete file")};
        if (swatches->list->allKeys().empty()) {
            return Message{phrase("it contains no colours"),
                           phrase("give a file with RGB, CMYK, Lab or grey colours")};
        }
        return ListFile{swatches->list, swatches->skipped};
    }
    const ListFormat* formatOfName = listFormatOfFile(fileName);
    const std::string_view form = formatOfName != nullptr ? formatOfName->name : std::string_view();
    if (startsColorSwatches(bytes)) {
        const auto swatches = readColorSwatches(bytes);
        // Two bytes say little: any other binary file could begin with them.
        const bool isSure = swatches && swatches->skipped == 0;
        if (!swatches && form == "aco")
            return Message{phrase("it is truncated"), phrase("give the complete file")};
        if (isSure || form == "aco") return listOf(*swatches, fileName);
    }
    if (startsKritaPalette(bytes)) {
        const Result<ListContents> palette = readKritaPalette(bytes);
        if (!palette) return palette.error();
        return listOf(*palette, fileName);
    }
    if (form == "svg") {
        return Message{phrase("pictures cannot be imported"),
                       phrase("give a palette, such as one exported with \"--format gpl\"")};
    }
    const std::string_view content = withoutListBlanks(bytes);
    const bool isStyleSheet = form == "css" || form == "scss";
    if (!isStyleSheet && (content.starts_with('{') || content.starts_with('['))) {
        if (mayHoldDesignTokens(content)) {
            if (const auto tokens = readDesignTokens(content)) return listOf(*tokens, fileName);
        }
        const Result<ListContents> json = readJsonList(content);
        if (!json) return json.error();
        return listOf(*json, fileName);
    }
    if (!isStyleSheet && content.starts_with('<')) {
        if (const auto table = readOfficeColorTable(content)) return listOf(*table, fileName);
    }
    return listOf(isStyleSheet ? readStyleSheet(bytes) : readColorLines(bytes), fileName);
}

}  // namespace vantorel
