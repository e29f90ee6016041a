#include "colormath/NearestNamedColor.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

HostColor colorOfBytes(std::uint32_t value, double alpha = 1)
{
    const auto fraction = [value](int shift) { return ((value >> shift) & 0xFF) / 255.0; };
    return HostColor::colorWithCalibratedRed(fraction(16), fraction(8), fraction(0), alpha);
}

TEST(NearestNamedColorTest, EveryNamedColourIsExact)
{
    for (const CSSNamedColor& named : cssNamedColors()) {
        const auto found = nearestNamedColor(colorOfBytes(named.value));
        ASSERT_TRUE(found);
        EXPECT_TRUE(found->isExact);
        EXPECT_EQ(found->color.name, cssNameOfColor(named.value)) << "the first of several names";
    }
}

TEST(NearestNamedColorTest, OtherColoursGetTheOneThatLooksNearest)
{
    struct Row {
        std::uint32_t value;
        std::u16string_view name;
    };
    for (const auto& [value, name] :
         {Row{0x3B82F6, u"dodgerblue"}, Row{0xFE0000, u"red"}, Row{0xE07A5F, u"lightcoral"},
          Row{0x010101, u"black"}, Row{0xFDFDFD, u"white"}}) {
        const auto found = nearestNamedColor(colorOfBytes(value, 0.5));
        ASSERT_TRUE(found);
        EXPECT_FALSE(found->isExact);
        EXPECT_EQ(found->color.name, name);
    }
}

TEST(NearestNamedColorTest, ColoursOutsideTheRangeCountAsTheNearestInside)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    const auto found = nearestNamedColor(HostColor::colorWithCalibratedRed(infinite, nan, -7, 1));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->color.name, u"red");
    EXPECT_FALSE(nearestNamedColor(HostColor::patternColor()));
}

}  // namespace
}  // namespace vantorel
