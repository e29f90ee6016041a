#include "listformats/ColorSwatches.h"

#include "colortext/ByteColor.h"
#include "csscolor/ColorConversions.h"
#include "listformats/BinaryNumbers.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vantorel {
namespace {

constexpr std::uint32_t withoutNames = 1;
constexpr std::uint32_t withNames = 2;

/// The numbers of the colour models.
struct Model {
    static constexpr std::uint32_t rgb = 0;
    static constexpr std::uint32_t hsb = 1;
    static constexpr std::uint32_t cmyk = 2;
    static constexpr std::uint32_t lab = 7;
    static constexpr std::uint32_t grey = 8;
    static constexpr std::uint32_t wideCMYK = 9;
};

void appendColor(std::string& bytes, const HostColor& color)
{
    const ByteColor channels = byteColorOf(color);
    appendBigEndian(bytes, Model::rgb, 2);
    for (const std::uint8_t byte : {channels.red, channels.green, channels.blue})
        appendBigEndian(bytes, byte * 0x101U, 2);
    appendBigEndian(bytes, 0, 2);
}

HostColor colorOfHSB(double hue, double saturation, double brightness)
{
    const ColorTriple srgb =
        srgbFromHWB({hue, (1 - saturation) * brightness * 100, (1 - brightness) * 100});
    return listColorOfSRGB(srgb[0], srgb[1], srgb[2]);
}

std::optional<HostColor> colorIn(BigEndianReader& file)
{
    const std::uint32_t model = file.number(2);
    std::array<std::uint32_t, 4> numbers{};
    for (std::uint32_t& number : numbers)
        number = file.number(2);
    constexpr double whole = 0xFFFF;
    constexpr double tenThousand = 10000;
    const auto share = [&](std::size_t place) { return numbers.at(place) / whole; };
    switch (model) {
        case Model::rgb:
            return listColorOfSRGB(share(0), share(1), share(2));
        case Model::hsb:
            return colorOfHSB(share(0) * 360, share(1), share(2));
        case Model::cmyk:
            // 0 is all of the ink.
            return listColorOfCMYK(1 - share(0), 1 - share(1), 1 - share(2), 1 - share(3));
        case Model::lab: {
            const auto hundredths = [&](std::size_t place) {
                return static_cast<std::int16_t>(numbers.at(place)) / 100.0;
            };
            return listColorOfLab(numbers[0] / 100.0, hundredths(1), hundredths(2));
        }
        case Model::grey: {
            const double light = numbers[0] / tenThousand;
            return listColorOfSRGB(light, light, light);
        }
        case Model::wideCMYK: {
            const auto ink = [&](std::size_t place) {
                return std::min(numbers.at(place) / tenThousand, 1.0);
            };
            return listColorOfCMYK(ink(0), ink(1), ink(2), ink(3));
        }
        default:
            return std::nullopt;
    }
}

}  // namespace

std::string colorSwatchesBytes(const HostColorList& list)
{
    const std::size_t count = std::min(list.allKeys().size(), mostColorSwatches);
    std::string bytes;
    for (const std::uint32_t part : {withoutNames, withNames}) {
        appendBigEndian(bytes, part, 2);
        appendBigEndian(bytes, static_cast<std::uint32_t>(count), 2);
        for (std::size_t i = 0; i < count; ++i) {
            appendColor(bytes, list.colorAtIndex(i));
            if (part == withoutNames) continue;
            const std::u16string& name = list.allKeys()[i];
            appendBigEndian(bytes, static_cast<std::uint32_t>(name.size() + 1), 4);
            appendUnits(bytes, name);
            appendBigEndian(bytes, 0, 2);
        }
    }
    return bytes;
}

bool startsColorSwatches(std::string_view bytes)
{
    using namespace std::string_view_literals;
    return bytes.starts_with("\0\1"sv) || bytes.starts_with("\0\2"sv);
}

std::optional<ListContents> readColorSwatches(std::string_view bytes)
{
    if (!startsColorSwatches(bytes)) return std::nullopt;
    BigEndianReader file(bytes);
    ListContents contents;
    // The second part repeats the first with names.
    while (true) {
        const bool isNamed = file.number(2) == withNames;
        const std::uint32_t count = file.number(2);
        contents = {};
        for (std::uint32_t i = 0; i < count && !file.hasFailed(); ++i) {
            const auto color = colorIn(file);
            std::u16string name = isNamed ? file.units(file.number(4)) : std::u16string();
            if (color) {
                contents.entries.emplace_back(*color, std::move(name));
            } else {
                ++contents.skipped;
            }
        }
        if (file.hasFailed()) return std::nullopt;
        BigEndianReader next = file;
        if (isNamed || next.number(2) != withNames) return contents;
    }
}

}  // namespace vantorel
