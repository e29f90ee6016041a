#include "colormath/ReadableColor.h"

#include "csscolor/CSSColorValue.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/Contrast.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

HostColor rgbColor(int red, int green, int blue, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

ContrastOf contrastOn(const HostColor& ground)
{
    return [ground](const HostColor& color) { return contrastRatio(color, ground).value_or(0); };
}

ColorTriple oklchOf(const HostColor& color)
{
    const auto rgb = *color.calibratedRGB();
    return polarFromRectangular(oklabFromSRGB({rgb.red, rgb.green, rgb.blue}));
}

TEST(ReadableColorTest, TheNearestLightnessThatPassesIsFoundOnEitherSide)
{
    const HostColor blue = rgbColor(59, 130, 246);
    for (const HostColor& ground : {HostColor::whiteColor(), rgbColor(45, 55, 80)}) {
        for (const double least : {4.5, 7.0}) {
            const auto found = nearestReadableColor(blue, least, contrastOn(ground));
            ASSERT_TRUE(found);
            const double ratio = *contrastRatio(*found, ground);
            EXPECT_GE(ratio, least);
            EXPECT_LT(ratio, least + 0.15) << "a nearer one would do";
            EXPECT_NEAR(oklchOf(*found)[2], oklchOf(blue)[2], 8) << "the hue stays";
        }
    }
    const auto darker = nearestReadableColor(blue, 4.5, contrastOn(HostColor::whiteColor()));
    EXPECT_LT(oklchOf(*darker)[0], oklchOf(blue)[0]);
    const auto lighter = nearestReadableColor(blue, 7, contrastOn(rgbColor(45, 55, 80)));
    EXPECT_GT(oklchOf(*lighter)[0], oklchOf(blue)[0]);
}

TEST(ReadableColorTest, TheResultIsWhatItsCodeSays)
{
    const auto found =
        nearestReadableColor(rgbColor(200, 90, 20), 4.5, contrastOn(HostColor::whiteColor()));
    const auto rgb = *found->calibratedRGB();
    for (const double channel : {rgb.red, rgb.green, rgb.blue})
        EXPECT_NEAR(channel * 255, std::round(channel * 255), 1e-9);
}

TEST(ReadableColorTest, AColourThatPassesStays)
{
    const HostColor wide = HostColor::colorWithCalibratedRed(-0.2, 0.1, 0.4, 0.9);
    EXPECT_EQ(nearestReadableColor(wide, 3, contrastOn(HostColor::whiteColor())), wide);
}

TEST(ReadableColorTest, WhatCannotPassHasNoResult)
{
    const HostColor grey = rgbColor(119, 119, 119);
    EXPECT_FALSE(nearestReadableColor(grey, 7, contrastOn(grey)));
    EXPECT_FALSE(
        nearestReadableColor(rgbColor(0, 0, 255, 0.1), 4.5, contrastOn(HostColor::whiteColor())));
    EXPECT_FALSE(
        nearestReadableColor(HostColor::patternColor(), 1, contrastOn(HostColor::whiteColor())));
}

}  // namespace
}  // namespace vantorel
