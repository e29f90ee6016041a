#include "colortext/ColorInCode.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

/// The four channels as bytes.
std::vector<int> bytesOf(std::u16string_view line)
{
    const auto color = colorInCode(line);
    if (!color) return {};
    const auto byte = [](double fraction) { return static_cast<int>(std::lround(fraction * 255)); };
    const auto c = color->calibratedRGB().value();
    return {byte(c.red), byte(c.green), byte(c.blue), byte(c.alpha)};
}

TEST(ColorInCodeTest, TheLinesOfTheBuiltInSnippetsAreRead)
{
    for (const char16_t* line :
         {u"[NSColor colorWithCalibratedRed:1.00000 green:0.49804 blue:0.31373 alpha:1.00000]",
          // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): long lines are split.
          u"[NSColor colorWithCalibratedRed:(255 / 255.0) green:(127 / 255.0) blue:(80 / 255.0) "
          u"alpha:1.00000]",
          u"[NSColor colorWithCalibratedRed:((CGFloat)0xff / (CGFloat)0xff) "
          u"green:((CGFloat)0x7f / (CGFloat)0xff) blue:((CGFloat)0x50 / (CGFloat)0xff) "
          u"alpha:1.00000]",
          u"RGBColor myColor = {0xff, 0x7f, 0x50};", u"RGBColor myColor = {255, 127, 80};",
          u"Color(1.00000, 0.49804, 0.31373)", u"Color(1.00000, 0.49804, 0.31373, 1.00000)",
          u"Color(0xff7f50)", u"Color(0xffff7f50)", u"Color(0xff, 0x7f, 0x50)",
          u"Color(0xff, 0x7f, 0x50, 0xff)", u"RGB(255, 127, 80)"}) {
        EXPECT_EQ(bytesOf(line), (std::vector{255, 127, 80, 255}));
    }
}

TEST(ColorInCodeTest, TheAlphaIsRead)
{
    EXPECT_EQ(bytesOf(u"Color(0x80ff7f50)"), (std::vector{255, 127, 80, 128}));
    EXPECT_EQ(bytesOf(u"Color(1.0f, 0.0f, 0.0f, 0.5f)"), (std::vector{255, 0, 0, 128}));
    EXPECT_EQ(bytesOf(u"Color(1, 2, 3, 4)"), (std::vector{1, 2, 3, 4}));
}

TEST(ColorInCodeTest, QuotientsAreFractions)
{
    EXPECT_EQ(bytesOf(u"Color(1 / 1, 0.5 / 1, 1 / 5)"), (std::vector{255, 128, 51, 255}));
}

TEST(ColorInCodeTest, OtherLinesAreNoColours)
{
    for (const char16_t* line :
         {u"", u"orange", u"12:30:45", u"Color()", u"Color(255)", u"Color(0xff7f5)", u"Color(1, 2)",
          u"Color(1, 2, 3, 4, 5)", u"Color(256, 0, 0)", u"Color(1.5, 0, 0)", u"Color(1 - 1, 2, 3)",
          u"Color(1 / 0, 2, 3)", u"Color(/ 2, 2, 3)", u"(030) 123-45-67", u"Color(0x, ",
          u"\u00a0("}) {
        EXPECT_TRUE(bytesOf(line).empty());
    }
}

TEST(DeclaredValueTest, ADeclarationGivesItsValue)
{
    EXPECT_EQ(declaredValue(u"color: red"), u" red");
    EXPECT_EQ(declaredValue(u"  --accent:#123;"), u"#123;");
    EXPECT_EQ(declaredValue(u"$sea-2 : oklch(0.5 0.1 20)"), u" oklch(0.5 0.1 20)");
    for (const char16_t* text : {u"red", u": red", u"", u"a(b): red", u"  "})
        EXPECT_EQ(declaredValue(text), text);
}

TEST(ColorInTextTest, ColorsOfCSSDeclarationsAndCodeAreRead)
{
    const HostColor orange = HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1);
    for (const char16_t* text :
         {u"#ff8000", u"rgb(255 128 0)", u"color: #ff8000;", u"QColor(255, 128, 0)"}) {
        const auto read = colorInText(text);
        ASSERT_TRUE(read);
        EXPECT_EQ(read->color, orange);
    }
    EXPECT_FALSE(colorInText(u"teapot"));
}

TEST(ColorInSnippetsTest, ALineIsFoundInAText)
{
    const SnippetReaders readers({QTXCodeSnippet(u"mine", u"UIColor(hex: 0x%06x)", u"rgbPackedInt"),
                                  QTXCodeSnippet(u"vb", u"RGB(%d, %d, %d)", u"rgbFixed")});
    const HostColor orange = HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1);
    for (const char16_t* text :
         {u"UIColor( hex: 0xFF8000 )\n", u"let c = UIColor(hex: 0xff8000) // mine",
          u"a = RGB(255, 128, 0); b = UIColor(hex: 0xff8000)"}) {
        EXPECT_EQ(colorInSnippets(text, readers), orange);
        EXPECT_EQ(colorInText(text, readers)->color, orange);
    }
    for (const char16_t* text : {u"a = RGB(1, 2, 3); b = RGB(1, 2, 4)",
                                 u"rgb(1 2 3 4) RGB(1, 2, 3)", u"UIColor(hex: 0xff80)", u""}) {
        EXPECT_FALSE(colorInSnippets(text, readers));
    }
}

TEST(ColorInTextTest, TheLineOfASnippetIsReadExactly)
{
    const auto read = colorInText(u"Color(1.00000, 0.50196, 0.00000)");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->color, HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1));
    EXPECT_EQ(read->value.components[1], 128 / 255.0);
}

}  // namespace
}  // namespace vantorel
