#include "color/ColorMeasures.h"

#include "color/QTXHexColorSpec.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace vantorel {
namespace {

/// How far above a step of the 8-bit grid a channel still lies on it.
constexpr double limit = 0.00002;

/// A colour whose channel at `index` has a value and whose others are 0.
HostColor withChannel(std::size_t index, double value)
{
    std::array<double, 3> channels{};
    channels.at(index) = value;
    return HostColor::colorWithCalibratedRed(channels[0], channels[1], channels[2], 1);
}

TEST(ColorMeasuresTest, EachChannelMustBeLessThanTheLimitAboveAStep)
{
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(exactHexColor(withChannel(i, std::nextafter(limit, 0))));
        EXPECT_FALSE(exactHexColor(withChannel(i, limit)));
        EXPECT_TRUE(exactHexColor(withChannel(i, 128 / 255.0 + 0.99 * limit)));
        EXPECT_FALSE(exactHexColor(withChannel(i, 128 / 255.0 + 1.01 * limit)));
        EXPECT_FALSE(exactHexColor(withChannel(i, 0.5)));
        EXPECT_TRUE(exactHexColor(withChannel(i, -0.001))) << "below a step";
        EXPECT_TRUE(exactHexColor(withChannel(i, 1)));
    }
    EXPECT_FALSE(exactHexColor(std::nullopt));
    EXPECT_FALSE(exactHexColor(HostColor::patternColor()));
}

TEST(ColorMeasuresTest, EachRemainderMustBeLessThanTheLimit)
{
    using Setter = void (QTXHexColorSpec::*)(double);
    for (const Setter set :
         {Setter{&QTXHexColorSpec::setRedRemainder}, Setter{&QTXHexColorSpec::setGreenRemainder},
          Setter{&QTXHexColorSpec::setBlueRemainder}}) {
        QTXHexColorSpec spec;
        (spec.*set)(std::nextafter(limit, 0));
        EXPECT_TRUE(spec.isExact());
        (spec.*set)(limit);
        EXPECT_FALSE(spec.isExact());
        (spec.*set)(-1);
        EXPECT_TRUE(spec.isExact());
    }
}

TEST(ColorMeasuresTest, DistancesAreThoseOfThePlane)
{
    EXPECT_EQ(distanceBetweenPoints(1, 2, 4, 6), 5);
    EXPECT_EQ(distanceBetweenPoints(4, 6, 1, 2), 5);
    EXPECT_EQ(distanceBetweenPoints(-1, 2, -1, 2), 0);
    EXPECT_EQ(distanceBetweenPoints(-1, 0, 2, 0), 3);
}

}  // namespace
}  // namespace vantorel
