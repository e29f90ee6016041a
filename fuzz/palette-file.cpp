#include "FuzzTexts.h"
#include "colorlists/PaletteFile.h"

/// What is read of a palette file is written strictly, and that reads as the same bytes again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    const std::string_view bytes = bytesFrom(data, size);
    const auto name = paletteName(bytes, u"fallback");
    const auto reading = readPalette(bytes, u"fallback");
    require(name.has_value() == reading.has_value());
    if (!reading) return 0;
    require(reading->list->name() == *name);
    const std::string strict = paletteText(*reading->list);
    const auto again = readPalette(strict, u"fallback");
    require(again.has_value() && again->skipped.empty());
    require(again->list->allKeys().size() == reading->list->allKeys().size());
    const auto third = readPalette(paletteText(*again->list), u"fallback");
    require(third->list->allKeys() == again->list->allKeys());
    return 0;
}
