#include "colortext/ByteColor.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

std::uint8_t byteOf(double fraction)
{
    if (!(fraction > 0)) return 0;
    return static_cast<std::uint8_t>(fraction < 1 ? std::lround(fraction * 255) : 255);
}

}  // namespace

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
    return {byteOf(rgb.red), byteOf(rgb.green), byteOf(rgb.blue), alpha};
}

}  // namespace vantorel
