#include "listformats/SwatchExchange.h"

#include "colorlists/KeyedEntries.h"
#include "colortext/ByteColor.h"
#include "csscolor/ColorConversions.h"
#include "csscolor/GamutMapping.h"

#include <algorithm>
#include <bit>
#include <cmath>
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

void appendNumber(std::string& bytes, std::uint32_t number, int width)
{
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8)
        bytes += static_cast<char>((number >> shift) & 0xFF);
}

void appendName(std::string& bytes, std::u16string_view name)
{
    name = name.substr(0, longestName);
    appendNumber(bytes, static_cast<std::uint32_t>(name.size() + 1), 2);
    for (const char16_t unit : name)
        appendNumber(bytes, unit, 2);
    appendNumber(bytes, 0, 2);
}

void appendBlock(std::string& bytes, std::uint16_t kind, std::string_view content)
{
    appendNumber(bytes, kind, 2);
    appendNumber(bytes, static_cast<std::uint32_t>(content.size()), 4);
    bytes += content;
}

/// Reads numbers from bytes. Past their end, all numbers are 0 and `hasFailed` returns true.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : _rest(bytes) {}

    std::string_view take(std::size_t count)
    {
        if (count > _rest.size()) {
            _failed = true;
            return {};
        }
        const std::string_view taken = _rest.substr(0, count);
        _rest.remove_prefix(count);
        return taken;
    }
    std::uint32_t number(std::size_t width)
    {
        std::uint32_t result = 0;
        for (const char c : take(width))
            result = result << 8 | static_cast<unsigned char>(c);
        return result;
    }
    double fraction() { return std::bit_cast<float>(number(4)); }
    std::u16string name()
    {
        const std::uint32_t length = number(2);
        std::u16string text;
        const std::string_view units = take(std::size_t{length} * 2);
        for (std::size_t i = 0; i + 1 < units.size(); i += 2) {
            text += static_cast<char16_t>(static_cast<unsigned char>(units[i]) << 8 |
                                          static_cast<unsigned char>(units[i + 1]));
        }
        while (text.ends_with(u'\0'))
            text.pop_back();
        return text;
    }
    [[nodiscard]] bool hasFailed() const { return _failed; }

private:
    std::string_view _rest;
    bool _failed = false;
};

double finite(double value)
{
    constexpr double farOutside = 1000;
    return std::isfinite(value) ? std::clamp(value, -farOutside, farOutside) : 0;
}

HostColor onGrid(const ColorTriple& srgb)
{
    return byteColorOf(HostColor::colorWithCalibratedRed(srgb[0], srgb[1], srgb[2], 1)).hostColor();
}

std::optional<HostColor> readColor(Bytes& block)
{
    const std::string_view model = block.take(4);
    if (model == "RGB ") {
        const double red = finite(block.fraction());
        const double green = finite(block.fraction());
        return onGrid({red, green, finite(block.fraction())});
    }
    if (model == "Gray") {
        const double grey = finite(block.fraction());
        return onGrid({grey, grey, grey});
    }
    if (model == "CMYK") {
        ColorTriple inks{};
        for (double& ink : inks)
            ink = finite(block.fraction());
        const double light = 1 - finite(block.fraction());
        return onGrid({(1 - inks[0]) * light, (1 - inks[1]) * light, (1 - inks[2]) * light});
    }
    if (model == "LAB ") {
        const double lightness = std::clamp(finite(block.fraction()), 0.0, 1.0) * 100;
        const double a = finite(block.fraction());
        const double b = finite(block.fraction());
        const ColorTriple xyz = xyzFromXYZD50(xyzD50FromLab({lightness, a, b}));
        return onGrid(mappedIntoSRGB(srgbFromLinear(linearSRGBFromXYZ(xyz))));
    }
    return std::nullopt;
}

}  // namespace

std::string swatchExchangeBytes(const HostColorList& list)
{
    std::string bytes(signature);
    appendNumber(bytes, version, 4);
    appendNumber(bytes, static_cast<std::uint32_t>(list.allKeys().size() + 2), 4);
    std::string content;
    appendName(content, list.name());
    appendBlock(bytes, groupStart, content);
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        content.clear();
        appendName(content, list.allKeys()[i]);
        content += "RGB ";
        const ByteColor color = byteColorOf(list.colorAtIndex(i));
        for (const std::uint8_t byte : {color.red, color.green, color.blue}) {
            appendNumber(content, std::bit_cast<std::uint32_t>(static_cast<float>(byte / 255.0)),
                         4);
        }
        appendNumber(content, normalColor, 2);
        appendBlock(bytes, colorEntry, content);
    }
    appendBlock(bytes, groupEnd, {});
    return bytes;
}

std::optional<SwatchExchangeReading> readSwatchExchange(std::string_view bytes,
                                                        const std::u16string& fallbackName)
{
    Bytes file(bytes);
    if (file.take(signature.size()) != signature) return std::nullopt;
    file.number(4);  // the version; only one exists
    const std::uint32_t blocks = file.number(4);

    std::u16string name;
    std::vector<std::pair<HostColor, std::u16string>> colors;
    SwatchExchangeReading reading;
    for (std::uint32_t i = 0; i < blocks; ++i) {
        const auto kind = static_cast<std::uint16_t>(file.number(2));
        const std::uint32_t length = file.number(4);
        Bytes block(file.take(length));
        if (file.hasFailed()) return std::nullopt;
        if (kind == groupStart && name.empty()) name = block.name();
        if (kind != colorEntry) continue;
        std::u16string colorName = block.name();
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
