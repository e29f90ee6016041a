#include "colortext/ColorTextReader.h"

#include "csscolor/CSSNamedColors.h"
#include "text/ASCII.h"

#include <gtest/gtest.h>

namespace {

using namespace vantorel;

std::string codeOf(const std::optional<ByteColor>& color)
{
    if (!color) return "none";
    char text[8];
    std::snprintf(text, sizeof text, "%02x%02x%02x", unsigned{color->red}, unsigned{color->green},
                  unsigned{color->blue});
    return text;
}

std::string codeOf(const Result<ByteColor>& color)
{
    return codeOf(color ? std::optional(*color) : std::nullopt);
}

TEST(ColorTextReaderTest, TheFastPathAgreesWithTheSlowOneOrDefersToIt)
{
    ColorTextReader reader([] { return nullptr; });
    // A blank takes the slow path, with the same result.
    for (std::uint32_t value = 0; value < 0x1000000; value += 4099) {
        char text[16];
        std::snprintf(text, sizeof text, "#%06X", value);
        const auto fast = readPlainHex(text);
        ASSERT_TRUE(fast) << text;
        EXPECT_EQ(codeOf(fast), codeOf(reader.read(std::string(" ") + text))) << text;
    }
    for (const char* text : {"", "#", "#1", "12", "1234", "#12345", "#1234567", "12345678",
                             "#12345g", "##1234", "#12 456", "ggg", "\xFF\xFF\xFF"})
        EXPECT_FALSE(readPlainHex(text)) << text;
}

TEST(ColorTextReaderTest, ShortCodesHaveThreeDigits)
{
    EXPECT_EQ(codeOf(readShortHex("1aF")), "11aaff");
    for (const char* text : {"", "12", "1234", "g12", "1g2", "12g"})
        EXPECT_FALSE(readShortHex(text)) << text;
}

TEST(ColorTextReaderTest, ANameOfCSSIsTheSameWithABlankBeforeIt)
{
    // The name alone takes a shorter way.
    ColorTextReader reader([] { return nullptr; });
    for (const CSSNamedColor& color : cssNamedColors()) {
        const std::string name(color.name.begin(), color.name.end());
        for (const std::string& text : {name, upperCased(name)}) {
            const auto read = reader.read(text);
            ASSERT_TRUE(read) << text;
            EXPECT_EQ(codeOf(read), codeOf(reader.read(' ' + text))) << text;
            EXPECT_EQ(read->alpha, 1) << text;
            EXPECT_FALSE(read->wasOutsideSRGB) << text;
        }
    }
}

TEST(ColorTextReaderTest, ChannelsAreRoundedAsInBrowsers)
{
    const auto codeOfChannel = [](double channel) {
        return int{byteColorOf(HostColor::colorWithCalibratedRed(channel, 0, 0, 1)).red};
    };
    EXPECT_EQ(codeOfChannel(127.49 / 255), 127);
    EXPECT_EQ(codeOfChannel(127.51 / 255), 128);
    EXPECT_EQ(codeOfChannel(-1), 0);
    EXPECT_EQ(codeOfChannel(7), 255);
    EXPECT_EQ(codeOfChannel(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(byteColorOf(HostColor::colorWithCalibratedRed(0, 0, 0, -3)).alpha, 0);
}

TEST(ColorTextReaderTest, WhatBeginsAsAFunctionOfCSSMustBeCSS)
{
    ColorTextReader reader([] { return nullptr; });
    EXPECT_EQ(codeOf(reader.read("the rgb(1, 2, 3) of it")), "010203");
    EXPECT_EQ(codeOf(reader.read("rgb (1, 2, 3)")), "none");
    for (const char* text : {"rgb(1 2 3 4)", "rgb(1,2,3,4,5)", "rgb(1 2 3 / )", "rgb(1 2 3",
                             "rgb(255, 255, 255, none)", "rgb(0, 0 0)", " RGB(1, 2, 3, x)"})
        EXPECT_EQ(codeOf(reader.read(text)), "none") << text;
}

TEST(ColorTextReaderTest, LightDarkNeedsATheme)
{
    const auto codeIn = [](CSSTheme theme) {
        return codeOf(
            ColorTextReader([] { return nullptr; }, theme).read("light-dark(#ff8000, #123456)"));
    };
    EXPECT_EQ(codeIn(CSSTheme::light), "ff8000");
    EXPECT_EQ(codeIn(CSSTheme::dark), "123456");
    EXPECT_EQ(codeIn(CSSTheme::unknown), "none");
}

TEST(ColorTextReaderTest, SumsThatJustMissAHalfAreRoundedUp)
{
    ColorTextReader reader([] { return nullptr; });
    EXPECT_EQ(codeOf(reader.read("hwb(120 30% 50%)")), "4d804d");
    EXPECT_EQ(codeOf(reader.read("rgb(30% 50% 10%)")), "4d801a");
    EXPECT_EQ(codeOf(reader.read("hsl(0 0% 50%)")), "808080");
}

TEST(ColorTextReaderTest, AListIsLoadedOnceAndOnlyToLookUpNames)
{
    int asked = 0;
    auto list = std::make_shared<HostColorList>(u"List");
    list->setColor(HostColor::colorWithCalibratedRed(0, 0, 1, 1), u"orange");
    list->setColor(HostColor::colorWithCalibratedRed(0, 1, 0, 1), u"Moss rgb(1,2,3)");
    ColorTextReader reader([&] {
        ++asked;
        return list;
    });
    EXPECT_EQ(codeOf(reader.read("orange")), "ffa500");
    EXPECT_EQ(codeOf(reader.read("#123")), "112233");
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(codeOf(reader.read("moss RGB(1,2,3)")), "00ff00");
    EXPECT_EQ(codeOf(reader.read("nothing")), "none");
    EXPECT_EQ(asked, 1);
}

TEST(ColorTextReaderTest, LinesOfSnippetsAreReadAfterNames)
{
    const SnippetReaders snippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    auto list = std::make_shared<HostColorList>(u"mine");
    list->setColor(HostColor::whiteColor(), u"Color(0xff0000)");
    ColorTextReader reader([&] { return list; }, CSSTheme::unknown, [&] { return &snippets; });
    EXPECT_EQ(reader.read("Color(0xff0000)")->green, 255);
    const auto translucent = reader.read("Color(0x80ff0000)");
    ASSERT_TRUE(translucent);
    EXPECT_EQ(translucent->red, 255);
    EXPECT_EQ(translucent->alpha, 128 / 255.0);
    EXPECT_TRUE(reader.read("c = RGB(1, 2, 3)"));
    EXPECT_FALSE(reader.read("rgb(1 2 3 4) = RGB(1, 2, 3)"));
}

}  // namespace
