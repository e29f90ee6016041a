#include "FuzzTexts.h"
#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/Contrast.h"

/// A text is a colour within sRGB, or a reason; and a colour is written as texts that read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    const CSSColorReading reading = readCSSColor(bytesFrom(data, size));
    require(reading.color.has_value() == reading.error.empty());
    if (!reading.color) return 0;
    const auto rgb = reading.color->color.calibratedRGB();
    require(rgb.has_value());
    for (const double channel : {rgb->red, rgb->green, rgb->blue, rgb->alpha})
        require(channel >= 0 && channel <= 1);
    // Compared in 8 bits, as in the texts: a fraction between two bytes may be rounded either way.
    const HostColor color = readCSSColor(*hexText(reading.color->color)).color->color;
    for (const auto& text : {hexText(color), rgbText(color), hslText(color), oklchText(color)}) {
        const auto again = readCSSColor(*text);
        require(again.color.has_value());
        require(hexText(again.color->color) == hexText(color));
    }
    const auto ratio = contrastRatio(reading.color->color, HostColor::whiteColor());
    require(ratio && *ratio >= 1 && *ratio <= 21.0001);
    return 0;
}
