#include "listformats/BinaryNumbers.h"

#include "colortext/ByteColor.h"
#include "csscolor/ColorConversions.h"
#include "csscolor/GamutMapping.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace vantorel {

void appendBigEndian(std::string& bytes, std::uint32_t number, int width)
{
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8)
        bytes += static_cast<char>((number >> shift) & 0xFF);
}

void appendUnits(std::string& bytes, std::u16string_view text)
{
    for (const char16_t unit : text)
        appendBigEndian(bytes, unit, 2);
}

std::string_view BigEndianReader::take(std::size_t count)
{
    if (count > _rest.size()) {
        _failed = true;
        return {};
    }
    const std::string_view taken = _rest.substr(0, count);
    _rest.remove_prefix(count);
    return taken;
}

std::uint32_t BigEndianReader::number(std::size_t width)
{
    std::uint32_t result = 0;
    for (const char c : take(width))
        result = result << 8 | static_cast<unsigned char>(c);
    return result;
}

double BigEndianReader::fraction()
{
    return std::bit_cast<float>(number(4));
}

std::u16string BigEndianReader::units(std::size_t count)
{
    std::u16string text;
    // No product that could overflow: a count of a damaged file may be any.
    if (count > _rest.size() / 2) {
        _failed = true;
        return text;
    }
    const std::string_view bytes = take(count * 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        text += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) << 8 |
                                      static_cast<unsigned char>(bytes[i + 1]));
    }
    while (text.ends_with(u'\0'))
        text.pop_back();
    return text;
}

double finiteNumber(double value)
{
    constexpr double farOutside = 1000;
    return std::isfinite(value) ? std::clamp(value, -farOutside, farOutside) : 0;
}

HostColor listColorOfSRGB(double red, double green, double blue)
{
    return byteColorOf(HostColor::colorWithCalibratedRed(red, green, blue, 1)).hostColor();
}

HostColor listColorOfCMYK(double cyan, double magenta, double yellow, double black)
{
    const double light = 1 - black;
    return listColorOfSRGB((1 - cyan) * light, (1 - magenta) * light, (1 - yellow) * light);
}

HostColor listColorOfLab(double lightness, double a, double b)
{
    const ColorTriple xyz = xyzFromXYZD50(xyzD50FromLab({std::clamp(lightness, 0.0, 100.0), a, b}));
    const ColorTriple srgb = mappedIntoSRGB(srgbFromLinear(linearSRGBFromXYZ(xyz)));
    return listColorOfSRGB(srgb[0], srgb[1], srgb[2]);
}

}  // namespace vantorel
