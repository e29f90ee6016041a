#include "colorlists/ColorSort.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vantorel {
namespace {

HostColor grey(double channel)
{
    return HostColor::colorWithCalibratedRed(channel, channel, channel, 1);
}

TEST(ColorSortTest, GreenDecidesThenBlueThenRed)
{
    const auto rgb = [](double red, double green, double blue) {
        return HostColor::colorWithCalibratedRed(red, green, blue, 1);
    };
    EXPECT_EQ(colorSortFunc(rgb(0, 0.2, 0), rgb(1, 0.1, 1)), -1);
    EXPECT_EQ(colorSortFunc(rgb(1, 0.1, 1), rgb(0, 0.2, 0)), 1);
    EXPECT_EQ(colorSortFunc(rgb(0, 0.5, 0.2), rgb(1, 0.5, 0.1)), -1);
    EXPECT_EQ(colorSortFunc(rgb(0.2, 0.5, 0.5), rgb(0.1, 0.5, 0.5)), -1);
    EXPECT_EQ(colorSortFunc(rgb(1, 1, 1), HostColor::patternColor()), -1);
    EXPECT_EQ(colorSortFunc(rgb(0, 0, 0), HostColor::patternColor()), 0);
}

TEST(ColorSortTest, OnlyTheLeftHexDigitCounts)
{
    for (int digit = 0; digit < 15; ++digit) {
        const HostColor first = grey((digit * 16 + 0.5) / 255);
        const HostColor last = grey((digit * 16 + 15.5) / 255);
        EXPECT_EQ(colorSortFunc(first, last), 0) << digit;
        EXPECT_EQ(colorSortFunc(last, grey((digit * 16 + 16.5) / 255)), 1) << digit;
    }
}

TEST(ColorSortTest, ChannelsThatAreNoByteHaveAPlace)
{
    const HostColor black = grey(0);
    const HostColor white = grey(1);
    for (const double channel : {-0.1, -1e300, std::nan("")})
        EXPECT_EQ(colorSortFunc(grey(channel), black), 0) << channel;
    // 2 to the power of 64 is the first number that is too large for an integer.
    const double pastLargest = std::ldexp(1.0, 64) / 255;
    ASSERT_EQ(pastLargest * 255, std::ldexp(1.0, 64));
    for (const double channel : {pastLargest, 1e300, std::numeric_limits<double>::infinity()})
        EXPECT_EQ(colorSortFunc(grey(channel), white), 0) << channel;
    EXPECT_EQ(colorSortFunc(grey(std::nextafter(pastLargest, 0)), black), 0);
    EXPECT_EQ(colorSortFunc(grey(256.5 / 255), black), 0) << "higher bits do not count";
}

}  // namespace
}  // namespace vantorel
