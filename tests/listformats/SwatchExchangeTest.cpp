#include "listformats/SwatchExchange.h"

#include "listformats/ListTexts.h"

#include <gtest/gtest.h>

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
