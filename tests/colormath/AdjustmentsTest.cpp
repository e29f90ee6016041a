#include "colormath/Adjustments.h"

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

CSSColorValue valueOf(const char* css)
{
    return readCSSColor(css)->value;
}

std::string textOf(const CSSColorValue& color)
{
    return utf8FromUtf16(cssTextIn(color.space, color));
}

TEST(AdjustmentsTest, LightnessStaysBetweenBlackAndWhite)
{
    const CSSColorValue red = valueOf("red");
    EXPECT_EQ(textOf(lightened(red, 0.2, ColorSpace::hsl)), "hsl(0 100% 70%)");
    EXPECT_EQ(textOf(lightened(red, -0.2, ColorSpace::hsl)), "hsl(0 100% 30%)");
    EXPECT_EQ(textOf(lightened(red, 0.9, ColorSpace::hsl)), "hsl(0 100% 100%)");
    EXPECT_EQ(textOf(lightened(red, -0.9, ColorSpace::hsl)), "hsl(0 100% 0%)");
    EXPECT_EQ(textOf(lightened(red, 0.1, ColorSpace::oklch)), "oklch(72.796% 0.25768 29.234)");
    EXPECT_EQ(textOf(lightened(red, 1, ColorSpace::oklch)), "oklch(100% 0.25768 29.234)");
    EXPECT_EQ(textOf(lightened(valueOf("lch(40 30 20)"), 0.25, ColorSpace::lch)), "lch(65 30 20)");
}

TEST(AdjustmentsTest, AFullAmountOfColourfulnessIsThatOfCSS)
{
    EXPECT_EQ(textOf(saturated(valueOf("hsl(30 40% 50%)"), 0.25, ColorSpace::hsl)),
              "hsl(30 65% 50%)");
    EXPECT_EQ(textOf(saturated(valueOf("hsl(30 40% 50%)"), 0.75, ColorSpace::hsl)),
              "hsl(30 100% 50%)");
    EXPECT_EQ(textOf(saturated(valueOf("oklch(50% 0.1 30)"), 0.25, ColorSpace::oklch)),
              "oklch(50% 0.2 30)");
    EXPECT_EQ(textOf(saturated(valueOf("lch(50 10 30)"), 0.1, ColorSpace::lch)), "lch(50 25 30)");
    EXPECT_EQ(textOf(saturated(valueOf("oklch(50% 0.1 30)"), -0.5, ColorSpace::oklch)),
              "oklch(50% 0 30)");
}

TEST(AdjustmentsTest, AGreyStaysGrey)
{
    for (const ColorSpace space : {ColorSpace::hsl, ColorSpace::lch, ColorSpace::oklch}) {
        const std::string grey = utf8FromUtf16(cssTextIn(space, valueOf("#808080")));
        EXPECT_EQ(textOf(saturated(valueOf("#808080"), 0.5, space)), grey);
        EXPECT_EQ(textOf(rotated(valueOf("#808080"), 90, space)), grey);
    }
}

TEST(AdjustmentsTest, HuesTurnBothWays)
{
    EXPECT_EQ(textOf(rotated(valueOf("red"), 120, ColorSpace::hsl)), "hsl(120 100% 50%)");
    EXPECT_EQ(textOf(rotated(valueOf("red"), -30, ColorSpace::hsl)), "hsl(330 100% 50%)");
    EXPECT_EQ(textOf(rotated(valueOf("oklch(50% 0.1 350)"), 20, ColorSpace::oklch)),
              "oklch(50% 0.1 10)");
}

TEST(AdjustmentsTest, OnlyHSLMapsIntoSRGB)
{
    const CSSColorValue wide = valueOf("oklch(80% 0.3 150 / 0.5)");
    EXPECT_EQ(textOf(lightened(wide, 0.1, ColorSpace::oklch)), "oklch(90% 0.3 150 / 0.5)");
    const CSSColorValue mapped = lightened(wide, 0, ColorSpace::hsl);
    EXPECT_LE(mapped.components[1], 100 + 1e-9);
    EXPECT_EQ(mapped.alpha, 0.5);
}

TEST(AdjustmentsTest, WhatIsChangedIsNoLongerMissing)
{
    EXPECT_EQ(textOf(lightened(valueOf("oklch(none 0.1 30)"), 0.2, ColorSpace::oklch)),
              "oklch(20% 0.1 30)");
    EXPECT_EQ(textOf(lightened(valueOf("oklch(50% 0.1 none)"), 0.2, ColorSpace::oklch)),
              "oklch(70% 0.1 none)");
}

}  // namespace
}  // namespace vantorel
