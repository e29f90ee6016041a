#include "colorlists/PaletteFile.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

using Keys = std::vector<std::u16string>;

HostColor bytes(int red, int green, int blue)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, 1);
}

TEST(PaletteFileTest, WritesTheStrictForm)
{
    HostColorList list(u"My \u20ac list");
    list.setColor(bytes(255, 128, 0), u"orange");
    list.setColor(HostColor::colorWithCalibratedRed(-3, 7, 0.5, 0.2), u"odd\tone\n");
    list.setColor(HostColor::patternColor(), u"");
    EXPECT_EQ(paletteText(list),
              "GIMP Palette\nName: My \u20ac list\nColumns: 0\n"
              "255 128   0\torange\n  0 255 128\todd one \n  0   0   0\t\n");
}

TEST(PaletteFileTest, EveryByteSurvives)
{
    HostColorList list(u"bytes");
    for (int k = 0; k < 256; ++k) {
        list.setColor(bytes(k, 255 - k, k / 2), u" name " + std::u16string(1, char16_t(0x100 + k)));
    }
    const auto reading = readPalette(paletteText(list), u"");
    ASSERT_TRUE(reading.has_value());
    EXPECT_TRUE(reading->skipped.empty());
    EXPECT_EQ(reading->list->name(), u"bytes");
    EXPECT_EQ(reading->list->allKeys(), list.allKeys());
    for (std::size_t i = 0; i < 256; ++i) {
        EXPECT_EQ(reading->list->colorAtIndex(i), list.colorAtIndex(i));
    }
}

TEST(PaletteFileTest, ReadsFilesOfOtherPrograms)
{
    const auto reading = readPalette(
        "\xEF\xBB\xBFGIMP Palette\r\nName: Caf\xC3\xA9\r\nColumns: 4\r\n#\r\n# note\r\n\r\n"
        "  1   2   3  one\r\n255 0 0\r\n0 255 0\r\n4 5 6\tone\r\n7 8 9 caf\xE9\r\n",
        u"fallback");
    ASSERT_TRUE(reading.has_value());
    EXPECT_EQ(reading->list->name(), u"Caf\u00e9");
    EXPECT_EQ(reading->list->allKeys(),
              (Keys{u"one", u"Untitled", u"Untitled 2", u"one 2", u"caf\u00e9"}));
    EXPECT_EQ(reading->list->colorWithKey(u"one 2"), bytes(4, 5, 6));
}

TEST(PaletteFileTest, TabsBeforeNamesAreTrimmed)
{
    const auto reading = readPalette("GIMP Palette\n1 2 3\t\tone\n4\t5\t6\t\n7 8 9\t two \n", u"x");
    ASSERT_TRUE(reading.has_value());
    EXPECT_EQ(reading->list->allKeys(), (Keys{u"one", u"Untitled", u" two "}));
}

TEST(PaletteFileTest, EveryPrefixOfAFileYieldsItsRows)
{
    const std::string text =
        "\xEF\xBB\xBFGIMP Palette\r\nName: n\r\n# \xE9\r\n 10  20  30\tcaf\xC3\xA9\r\n40 50 60\n";
    const std::size_t headEnd = text.find("Palette") + 7;
    std::size_t colors = 0;
    for (std::size_t length = 0; length <= text.size(); ++length) {
        const auto reading = readPalette(std::string_view(text).substr(0, length), u"x");
        ASSERT_EQ(reading.has_value(), length >= headEnd) << length;
        if (!reading) continue;
        EXPECT_GE(reading->list->allKeys().size(), colors) << length;
        colors = reading->list->allKeys().size();
    }
    EXPECT_EQ(colors, 2U);
}

TEST(PaletteFileTest, SkipsBadLinesAndReportsTheirNumbers)
{
    const auto reading = readPalette(
        "KDE RGB Palette\n1 2 3 good\n1 2 bad\n256 0 0 bad\n-1 0 0 bad\nwords\n1 2 3x bad\n",
        u"kde");
    ASSERT_TRUE(reading.has_value());
    EXPECT_EQ(reading->list->name(), u"kde");
    EXPECT_EQ(reading->list->allKeys(), (Keys{u"good"}));
    std::vector<std::size_t> numbers;
    for (const auto& line : reading->skipped)
        numbers.push_back(line.number);
    EXPECT_EQ(numbers, (std::vector<std::size_t>{3, 4, 5, 6, 7}));
}

TEST(PaletteFileTest, AnotherKindOfFileIsNotAPalette)
{
    for (const char* file : {"", "\n", "GIMP", "JASC-PAL\n0100\n", "GIMP Palette 2\n"}) {
        EXPECT_FALSE(readPalette(file, u"x").has_value()) << file;
    }
}

TEST(PaletteFileTest, ManyEqualNamesAreReadQuickly)
{
    std::string text = "GIMP Palette\n";
    for (int i = 0; i < 50000; ++i)
        text += "1 2 3 same\n";
    const auto reading = readPalette(text, u"x");
    ASSERT_TRUE(reading.has_value());
    EXPECT_EQ(reading->list->allKeys().size(), 50000U);
    EXPECT_EQ(reading->list->allKeys().back(), u"same 50000");
}

TEST(PaletteFileTest, AnyBytesAreRead)
{
    std::mt19937 random(2);
    for (int round = 0; round < 3000; ++round) {
        std::string text = "GIMP Palette\n";
        for (std::size_t i = random() % 60; i > 0; --i) {
            text += "0123456789 \t\n\r#Name:\x80\xff"[random() % 22];
        }
        EXPECT_TRUE(readPalette(text, u"x").has_value());
    }
}

}  // namespace
}  // namespace vantorel
