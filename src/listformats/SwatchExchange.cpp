#include "listformats/SwatchExchange.h"

#include "colorlists/KeyedEntries.h"
#include "colortext/ByteColor.h"
#include "listformats/BinaryNumbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace vantorel {
namespace {

constexpr std::string_view signature = "ASEF";
constexpr std::uint32_t version = 0x00010000;
constexpr std::uint16_t groupStart = 0xC001;
constexpr std::uint16_t groupEnd = 0xC002;
constexpr std::uint16_t colorEntry = 0x0001;
constexpr std::uint16_t normalColor = 2;
/// The length of a name is stored in 16 bits and includes the final NUL.
constexpr std::size_t longestName = 0xFFFE;

void appendName(std::string& bytes, std::u16string_view name)
{
    name = name.substr(0, longestName);
    appendBigEndian(bytes, static_cast<std::uint32_t>(name.size() + 1), 2);
    appendUnits(bytes, name);
    appendBigEndian(bytes, 0, 2);
}

void appendBlock(std::string& bytes, std::uint16_t kind, std::string_view content)
{
    appendBigEndian(bytes, kind, 2);
    appendBigEndian(bytes, static_cast<std::uint32_t>(content.size()), 4);
    bytes += content;
}

std::u16string nameIn(BigEndianReader& block)
{
    return block.units(block.number(2));
}

std::optional<HostColor> readColor(BigEndianReader& block)
{
    const std::string_view model = block.take(4);
    std::array<double, 4> numbers{};
    const auto read = [&](std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            numbers.at(i) = finiteNumber(block.fraction());
    };
    if (model == "RGB ") {
        read(3);
        return listColorOfSRGB(numbers[0], numbers[1], numbers[2]);
    }
    if (model == "Gray") {
        read(1);
        return listColorOfSRGB(numbers[0], numbers[0], numbers[0]);
    }
    if (model == "CMYK") {
        read(4);
        return listColorOfCMYK(numbers[0], numbers[1], numbers[2], numbers[3]);
    }
    if (model == "LAB ") {
        read(3);
        return listColorOfLab(std::clamp(numbers[0], 0.0, 1.0) * 100, numbers[1], numbers[2]);
    }
    return std::nullopt;
}

}  // namespace

std::string swatchExchangeBytes(const HostColorList& list)
{
    std::string bytes(signature);
    appendBigEndian(bytes, version, 4);
    appendBigEndian(bytes, static_cast<std::uint32_t>(list.allKeys().size() + 2), 4);
    std::string content;
    appendName(content, list.name());
    appendBlock(bytes, groupStart, content);
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        content.clear();
        appendName(content, list.allKeys()[i]);
        content += "RGB ";
        const ByteColor color = byteColorOf(list.colorAtIndex(i));
        for (const std::uint8_t byte : {color.red, color.green, color.blue}) {
            appendBigEndian(content, std::bit_cast<std::uint32_t>(static_cast<float>(byte / 255.0)),
                            4);
        }
        appendBigEndian(content, normalColor, 2);
        appendBlock(bytes, colorEntry, content);
    }
    appendBlock(bytes, groupEnd, {});
    return bytes;
}

std::optional<SwatchExchangeReading> readSwatchExchange(std::string_view bytes,
                                                        const std::u16string& fallbackName)
{
    BigEndianReader file(bytes);
    if (file.take(signature.size()) != signature) return std::nullopt;
    file.number(4);  // the version; only one exists
    const std::uint32_t blocks = file.number(4);

    std::u16string name;
    std::vector<std::pair<HostColor, std::u16string>> colors;
    SwatchExchangeReading reading;
    for (std::uint32_t i = 0; i < blocks; ++i) {
        const auto kind = static_cast<std::uint16_t>(file.number(2));
        const std::uint32_t length = file.number(4);
        BigEndianReader block(file.take(length));
        if (file.hasFailed()) return std::nullopt;
        if (kind == groupStart && name.empty()) name = nameIn(block);
        if (kind != colorEntry) continue;
        std::u16string colorName = nameIn(block);
        const auto color = readColor(block);
        if (block.hasFailed()) return std::nullopt;
        if (color) {
            colors.emplace_back(*color, std::move(colorName));
        } else {
            ++reading.skipped;
        }
    }
    if (file.hasFailed()) return std::nullopt;
    reading.list = std::make_shared<HostColorList>(name.empty() ? fallbackName : name);
    KeyedEntries entries(*reading.list);
    for (auto& [color, colorName] : colors)
        entries.add(color, std::move(colorName));
    return reading;
}

}  // namespace vantorel
