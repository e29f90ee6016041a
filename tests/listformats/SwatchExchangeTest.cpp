#include "listformats/SwatchExchange.h"

#include "listformats/ListTexts.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace vantorel;

std::shared_ptr<HostColorList> list()
{
    auto result = std::make_shared<HostColorList>(u"List \u00e9");
    result->setColor(HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1), u"orange");
    result->setColor(HostColor::colorWithCalibratedRed(1 / 255.0, 2 / 255.0, 3 / 255.0, 1),
                     u"\U0001F3A8");
    return result;
}

TEST(SwatchExchangeTest, WrittenListsReadBack)
{
    for (int value = 0; value < 256; ++value) {
        HostColorList one(u"One");
        one.setColor(HostColor::colorWithCalibratedRed(value / 255.0, 0, 0, 1), u"x");
        const auto reading = readSwatchExchange(swatchExchangeBytes(one), u"");
        ASSERT_TRUE(reading);
        EXPECT_EQ(reading->list->colorAtIndex(0), one.colorAtIndex(0));
    }
    const auto reading = readSwatchExchange(swatchExchangeBytes(*list()), u"");
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->list->name(), u"List \u00e9");
    EXPECT_EQ(plainText(*reading->list), plainText(*list()));
}

void appendBigEndian(std::string& bytes, std::uint32_t number, int width)
{
    for (int byte = width - 1; byte >= 0; --byte)
        bytes += static_cast<char>(number >> 8 * byte & 0xFF);
}

/// A file with one colour, called "x".
std::string swatchFile(std::string_view model, const std::vector<float>& channels)
{
    std::string color("\0\2\0x\0\0", 6);
    color += model;
    for (const float channel : channels)
        appendBigEndian(color, std::bit_cast<std::uint32_t>(channel), 4);
    appendBigEndian(color, 2, 2);
    std::string bytes = "ASEF";
    appendBigEndian(bytes, 0x00010000, 4);
    appendBigEndian(bytes, 1, 4);
    appendBigEndian(bytes, 1, 2);
    appendBigEndian(bytes, static_cast<std::uint32_t>(color.size()), 4);
    return bytes + color;
}

TEST(SwatchExchangeTest, EveryColourModelIsRead)
{
    struct Row {
        std::string_view model;
        std::vector<float> channels;
        std::string_view line;
    };
    const Row rows[] = {
        {"RGB ", {0.5F, 0.25F, 0.75F}, "#8040bf\tx\n"},
        {"Gray", {0.2F}, "#333333\tx\n"},
        {"CMYK", {0.2F, 0.6F, 0.9F, 0.5F}, "#66330d\tx\n"},
        // Values far outside are limited to 1000.
        {"CMYK", {-2000, 1, 1, 0.999214903F}, "#c80000\tx\n"},
        {"LAB ", {0.5F, 40, 20}, "#b95857\tx\n"},
        {"LAB ", {1, 0, 0}, "#ffffff\tx\n"},
        {"LAB ", {0.5F, 0, -60}, "#007bde\tx\n"},
    };
    for (const Row& row : rows) {
        const auto reading = readSwatchExchange(swatchFile(row.model, row.channels), u"");
        ASSERT_TRUE(reading) << row.model;
        EXPECT_EQ(plainText(*reading->list), row.line) << row.model;
    }
    const auto unknown = readSwatchExchange(swatchFile("HSB ", {0, 0, 0}), u"");
    ASSERT_TRUE(unknown);
    EXPECT_TRUE(unknown->list->allKeys().empty());
    EXPECT_EQ(unknown->skipped, 1U);
}

TEST(SwatchExchangeTest, ListsAreWrittenAsAGroupOfNormalColours)
{
    HostColorList one(u"L");
    one.setColor(HostColor::colorWithCalibratedRed(1, 0, 0, 1), u"x");
    const auto text = [](std::string_view letter) {
        return std::string("\0\2\0", 3) + std::string(letter) + std::string("\0\0", 2);
    };
    std::string bytes = "ASEF";
    appendBigEndian(bytes, 0x00010000, 4);
    appendBigEndian(bytes, 3, 4);
    appendBigEndian(bytes, 0xC001, 2);
    appendBigEndian(bytes, 6, 4);
    bytes += text("L");
    appendBigEndian(bytes, 1, 2);
    appendBigEndian(bytes, 24, 4);
    bytes += text("x") + "RGB ";
    appendBigEndian(bytes, std::bit_cast<std::uint32_t>(1.0F), 4);
    appendBigEndian(bytes, 0, 4);
    appendBigEndian(bytes, 0, 4);
    appendBigEndian(bytes, 2, 2);
    appendBigEndian(bytes, 0xC002, 2);
    appendBigEndian(bytes, 0, 4);
    EXPECT_EQ(swatchExchangeBytes(one), bytes);
}

TEST(SwatchExchangeTest, EveryTruncatedFileIsRejected)
{
    const std::string bytes = swatchExchangeBytes(*list());
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(readSwatchExchange(bytes.substr(0, length), u"")) << length;
    EXPECT_FALSE(readSwatchExchange("ASEX", u""));
}

TEST(SwatchExchangeTest, ChangingAnyByteIsHarmless)
{
    const std::string bytes = swatchExchangeBytes(*list());
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        for (const char byte : {'\0', '\xFF', '\x7F', '\x01'}) {
            std::string changed = bytes;
            changed[place] = byte;
            const auto reading = readSwatchExchange(changed, u"Name");
            if (!reading) continue;
            for (std::size_t i = 0; i < reading->list->allKeys().size(); ++i) {
                const auto rgb = reading->list->colorAtIndex(i).calibratedRGB();
                EXPECT_TRUE(rgb && rgb->red >= 0 && rgb->red <= 1 && rgb->blue >= 0 &&
                            rgb->blue <= 1);
            }
        }
    }
}

}  // namespace
