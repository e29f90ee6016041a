#include "cli/ColorForm.h"

#include "cli/Terminal.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

std::u16string mappedText(std::string_view form, const CSSColor& color)
{
    if (form == "hex") return hexText(color.color).value_or(u"");
    if (form == "rgb") return rgbText(color.color).value_or(u"");
    if (form == "hsl") return hslText(color.color).value_or(u"");
    return cssTextIn(ColorSpace::hwb, cssValueOf(color.color));
}

std::optional<ColorSpace> wideSpaceOf(std::string_view form)
{
    const auto space = colorSpaceNamed(utf16FromUtf8(form));
    return space == ColorSpace::hsl || space == ColorSpace::hwb ? std::nullopt : space;
}

}  // namespace

ColorFormWriter::ColorFormWriter(const std::optional<std::string>& form)
    : _form(form.value_or("hex")), _wideSpace(wideSpaceOf(_form)), _showsSwatches(showsSwatches())
{
}

void ColorFormWriter::write(Output& output, const CSSColor& color, std::string_view end) const
{
    if (_showsSwatches) output.write(swatchOf(byteColorOf(color.color)));
    output.write(
        utf8FromUtf16(_wideSpace ? cssTextIn(*_wideSpace, color.value) : mappedText(_form, color)));
    output.write(end);
    output.write('\n');
}

void ColorFormWriter::write(Output& output, const CSSColorValue& color, std::string_view end) const
{
    CSSColor mapped;
    mapped.value = color;
    if (_showsSwatches || !_wideSpace) {
        const auto [red, green, blue] = mappedIntoSRGB(color).components;
        mapped.color = HostColor::colorWithCalibratedRed(red, green, blue, color.alpha);
    }
    write(output, mapped, end);
}

}  // namespace vantorel
