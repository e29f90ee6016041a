#include "FuzzTexts.h"
#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/Contrast.h"

/// A text is a colour within sRGB, or a reason; and a colour is written as texts that read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    const Result<CSSColor> reading = readCSSColor(bytesFrom(data, size));
    if (!reading) {
        require(!english(reading.error()).empty());
        return 0;
    }
    const auto rgb = reading->color.calibratedRGB();
    require(rgb.has_value());
    for (const double channel : {rgb->red, rgb->green, rgb->blue, rgb->alpha})
        require(channel >= 0 && channel <= 1);
    // Compared in 8 bits, as in the texts: a fraction between two bytes may be rounded either way.
    const HostColor color = readCSSColor(*hexText(reading->color))->color;
    for (const auto& text : {hexText(color), rgbText(color), hslText(color), oklchText(color)}) {
        const auto again = readCSSColor(*text);
        require(again.hasValue());
        require(hexText(again->color) == hexText(color));
    }
    const auto ratio = contrastRatio(reading->color, HostColor::whiteColor());
    require(ratio && *ratio >= 1 && *ratio <= 21.0001);
    return 0;
}
