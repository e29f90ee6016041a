#include "hosts/common/ReadableColor.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr HostColor rgb(double red, double green, double blue)
{
    return HostColor::colorWithCalibratedRed(red, green, blue, 1);
}

constexpr HostColor light = rgb(0.95, 0.95, 0.95);
constexpr HostColor dark = rgb(0.1, 0.1, 0.1);
constexpr HostColor usual = rgb(0.5, 0.6, 0.7);
constexpr HostColor red = rgb(200 / 255.0, 30 / 255.0, 30 / 255.0);

TEST(ReadableColorTest, BlackIsTheToolkitsTextColour)
{
    EXPECT_EQ(readableTextColor(HostColor::blackColor(), light, usual), usual);
    EXPECT_EQ(readableTextColor(HostColor::blackColor(), dark, usual), usual);
    EXPECT_EQ(readableTextColor(HostColor::patternColor(), dark, usual), usual);
}

TEST(ReadableColorTest, DarkColoursAreLightenedOnADarkGround)
{
    EXPECT_EQ(readableTextColor(red, light, usual), red);
    const HostColor lightRed = readableTextColor(red, dark, usual);
    EXPECT_NEAR(lightnessOf(lightRed), 0.72, 1e-9);
    const auto channels = *lightRed.calibratedRGB();
    EXPECT_NEAR(channels.green, channels.blue, 1e-9);
    // The saturation stays.
    EXPECT_NEAR((channels.red - channels.green) / (2 * (1 - 0.72)), 170 / 230.0, 1e-9);
    const HostColor pale = rgb(0.9, 0.8, 0.8);
    EXPECT_EQ(readableTextColor(pale, dark, usual), pale);
}

}  // namespace
}  // namespace vantorel
