#include "csscolor/CSSColorWriter.h"
#include "text/Unicode.h"

#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace vantorel {
namespace {

HostColor bytes(int red, int green, int blue, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

struct WriterRow {
    HostColor color;
    const char16_t* hex;
    const char16_t* rgb;
    const char16_t* hsl;
    const char16_t* oklch;
};

TEST(CSSColorWriterTest, ColoursAreWrittenInEveryForm)
{
    const WriterRow rows[]{
        {bytes(255, 0, 0), u"#ff0000", u"rgb(255, 0, 0)", u"hsl(0 100% 50%)",
         u"oklch(62.796% 0.25768 29.234)"},
        {bytes(0, 255, 0), u"#00ff00", u"rgb(0, 255, 0)", u"hsl(120 100% 50%)",
         u"oklch(86.644% 0.29483 142.495)"},
        {bytes(0, 0, 255, 0.5), u"#0000ff80", u"rgba(0, 0, 255, 0.5)", u"hsl(240 100% 50% / 0.5)",
         u"oklch(45.201% 0.31321 264.052 / 0.5)"},
        {bytes(0, 0, 0), u"#000000", u"rgb(0, 0, 0)", u"hsl(0 0% 0%)", u"oklch(0% 0 0)"},
        {bytes(255, 255, 255, 0), u"#ffffff00", u"rgba(255, 255, 255, 0)", u"hsl(0 0% 100% / 0)",
         u"oklch(100% 0 0 / 0)"},
        {bytes(128, 128, 128, 0.334), u"#80808055", u"rgba(128, 128, 128, 0.333)",
         u"hsl(0 0% 50.2% / 0.333)", u"oklch(59.987% 0 0 / 0.333)"},
        {bytes(102, 51, 153, 0.9999), u"#663399", u"rgb(102, 51, 153)", u"hsl(270 50% 40%)",
         u"oklch(44.027% 0.1603 303.373)"},
        {bytes(0, 1, 0, 0.1), u"#0001001a", u"rgba(0, 1, 0, 0.1)", u"hsl(120 100% 0.2% / 0.1)",
         u"oklch(5.823% 0.01981 142.495 / 0.1)"},
    };
    for (const WriterRow& row : rows) {
        EXPECT_EQ(hexText(row.color), row.hex);
        EXPECT_EQ(rgbText(row.color), row.rgb);
        EXPECT_EQ(hslText(row.color), row.hsl);
        EXPECT_EQ(oklchText(row.color), row.oklch);
    }
}

TEST(CSSColorWriterTest, AnAlphaIsAddedToTheTextOfAnOpaqueColour)
{
    EXPECT_EQ(rgbTextWithAlpha(u"rgb(255, 128, 0)", 0.5), u"rgb(255 128 0 / 0.5)");
    EXPECT_EQ(rgbTextWithAlpha(u"RGB(255, 128, 0);", 0), u"RGB(255 128 0 / 0);");
    EXPECT_EQ(rgbTextWithAlpha(u"rgb(255, 128, 0)", 0.999), u"rgb(255, 128, 0)");
    EXPECT_EQ(rgbTextWithAlpha(u"no colour", 0.5), u"no colour / 0.5");
}

TEST(CSSColorWriterTest, EveryTextReadsBackAsTheSameEightBits)
{
    std::mt19937 random(11);
    for (int round = 0; round < 20000; ++round) {
        const auto byte = [&random] { return static_cast<int>(random() & 0xFF); };
        const HostColor color = bytes(byte(), byte(), byte(), byte() / 255.0);
        const auto hex = hexText(color);
        for (const auto& text : {hex, rgbText(color), hslText(color), oklchText(color)}) {
            const Result<CSSColor> reading = readCSSColor(*text);
            ASSERT_TRUE(reading);
            ASSERT_EQ(hexText(reading->color), hex);
            ASSERT_FALSE(reading->wasOutsideSRGB);
        }
    }
}

TEST(CSSColorWriterTest, EveryAlphaReadsBackAsTheSameEightBits)
{
    for (int byte = 0; byte <= 255; ++byte) {
        const HostColor color = bytes(1, 2, 3, byte / 255.0);
        for (const auto& text : {rgbText(color), hslText(color), oklchText(color)})
            EXPECT_EQ(hexText(readCSSColor(*text).value().color), hexText(color)) << byte;
    }
}

TEST(CSSColorWriterTest, FractionsOutOfRangeAreClamped)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const auto strange =
        HostColor::colorWithCalibratedRed(infinity, -infinity, std::nan(""), 1e300);
    EXPECT_EQ(hexText(strange), u"#ff0000");
    EXPECT_EQ(rgbText(strange), u"rgb(255, 0, 0)");
    EXPECT_EQ(hslText(strange), u"hsl(0 100% 50%)");
    EXPECT_EQ(oklchText(strange), u"oklch(62.796% 0.25768 29.234)");
    EXPECT_EQ(hexText(bytes(0, 0, 0, std::nan(""))), u"#00000000");
}

TEST(CSSColorWriterTest, EverySpaceHasAForm)
{
    const auto textIn = [](ColorSpace space, const char* color) {
        return utf8FromUtf16(cssTextIn(space, readCSSColor(color)->value));
    };
    const std::vector<std::pair<ColorSpace, const char*>> rows{
        {ColorSpace::srgb, "color(srgb 1 0.5 0)"},
        {ColorSpace::srgbLinear, "color(srgb-linear 1 0.21404 0)"},
        {ColorSpace::displayP3, "color(display-p3 0.93596 0.52724 0.1983)"},
        {ColorSpace::displayP3Linear, "color(display-p3-linear 0.86046 0.24013 0.03258)"},
        {ColorSpace::a98RGB, "color(a98-rgb 0.89114 0.4961 0.1163)"},
        {ColorSpace::proPhotoRGB, "color(prophoto-rgb 0.75288 0.49821 0.17198)"},
        {ColorSpace::rec2020, "color(rec2020 0.86081 0.57585 0.24805)"},
        {ColorSpace::xyzD65, "color(xyz 0.48893 0.36571 0.04484)"},
        {ColorSpace::xyzD50, "color(xyz-d50 0.5185 0.37594 0.0347)"},
        {ColorSpace::hsl, "hsl(30 100% 50%)"},
        {ColorSpace::hwb, "hwb(30 0% 0%)"},
        {ColorSpace::lab, "lab(67.72 45.722 74.792)"},
        {ColorSpace::lch, "lch(67.72 87.66 58.562)"},
        {ColorSpace::oklab, "oklab(73.114% 0.11259 0.1482)"},
        {ColorSpace::oklch, "oklch(73.114% 0.18611 52.776)"},
    };
    for (const auto& [space, text] : rows) {
        EXPECT_EQ(textIn(space, "color(srgb 1 0.5 0)"), text);
    }
    EXPECT_EQ(textIn(ColorSpace::lab, "lab(50 -200 3 / 50%)"), "lab(50 -200 3 / 0.5)");
    EXPECT_EQ(textIn(ColorSpace::displayP3, "color(display-p3 1.5 -1 0)"),
              "color(display-p3 1.5 -1 0)");
}

TEST(CSSColorWriterTest, EverySpaceReadsBackAsTheSameEightBits)
{
    std::mt19937 random(12);
    for (int round = 0; round < 1000; ++round) {
        const auto byte = [&random] { return static_cast<int>(random() & 0xFF); };
        const auto hex = hexText(bytes(byte(), byte(), byte(), byte() / 255.0));
        const CSSColorValue value = readCSSColor(*hex)->value;
        for (int space = 0; space <= static_cast<int>(ColorSpace::oklch); ++space) {
            const std::u16string text = cssTextIn(static_cast<ColorSpace>(space), value);
            ASSERT_EQ(hexText(readCSSColor(text).value().color), hex) << utf8FromUtf16(text);
        }
    }
}

TEST(CSSColorWriterTest, NoneIsWrittenOnlyIfItWasRead)
{
    const auto textIn = [](ColorSpace space, const char* color) {
        return utf8FromUtf16(cssTextIn(space, readCSSColor(color)->value));
    };
    EXPECT_EQ(textIn(ColorSpace::oklch, "gray"), "oklch(59.987% 0 0)");
    EXPECT_EQ(textIn(ColorSpace::oklch, "oklch(50% none 30 / none)"), "oklch(50% none 30 / none)");
    EXPECT_EQ(textIn(ColorSpace::oklab, "lch(none 0 30)"), "oklab(none 0 0)");
}

TEST(CSSColorWriterTest, APatternHasNoText)
{
    const HostColor pattern = HostColor::patternColor();
    EXPECT_FALSE(hexText(pattern));
    EXPECT_FALSE(rgbText(pattern));
    EXPECT_FALSE(hslText(pattern));
    EXPECT_FALSE(oklchText(pattern));
}

}  // namespace
}  // namespace vantorel
