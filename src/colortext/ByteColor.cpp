#include "colortext/ByteColor.h"

#include "color/ChannelConversion.h"
#include "text/HexDigits.h"

#include <algorithm>

namespace vantorel {

QTXHexColorSpec ByteColor::spec() const
{
    QTXHexColorSpec spec;
    spec.setHexRed(red, green, blue);
    spec.setAlphaComp(alpha);
    return spec;
}

HostColor ByteColor::hostColor() const
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

ByteColor byteColorOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    const double alpha = rgb.alpha > 0 ? std::min(rgb.alpha, 1.0) : 0;
    return {nearestByte(rgb.red), nearestByte(rgb.green), nearestByte(rgb.blue), alpha};
}

std::string opaqueHexText(const HostColor& color)
{
    const ByteColor bytes = byteColorOf(color);
    std::string text;
    appendHexColor(text, {bytes.red, bytes.green, bytes.blue}, HexCase::lower);
    return text;
}

}  // namespace vantorel
