#include "panel/widgets/LastColorsOrder.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantorel {
namespace {

using Colors = std::vector<HostColor>;

HostColor gray(double value)
{
    return HostColor::colorWithCalibratedRed(value, value, value, 1);
}

const Colors dark{gray(0.1), gray(0.2), gray(0.3)};
const Colors light{gray(0.7), gray(0.8), gray(0.9)};

TEST(LastColorsOrderTest, APinnedColorIsShownOnce)
{
    const LastColorsOrder order(dark, {dark[1], light[0]});
    EXPECT_EQ(order.others(), Colors{light[0]});
    EXPECT_EQ(order.colorAt(3), light[0]);
    EXPECT_TRUE(order.isPinned(2));
    EXPECT_FALSE(order.isPinned(3));
    EXPECT_FALSE(order.isPinned(-1));
}

TEST(LastColorsOrderTest, APinnedColorMovesOnlyAmongThePinned)
{
    const LastColorsOrder order(dark, light);
    EXPECT_EQ(order.pinnedAfterMoving(0, 1), (Colors{dark[1], dark[0], dark[2]}));
    EXPECT_EQ(order.pinnedAfterMoving(0, -1), dark);
    EXPECT_EQ(order.pinnedAfterMoving(2, 1), dark);
    EXPECT_EQ(order.pinnedAfterMoving(3, -1), dark);
}

TEST(LastColorsOrderTest, ADroppedColorLeavesItsFormerPlace)
{
    const LastColorsOrder order(dark, light);
    EXPECT_EQ(order.pinnedAfterDropping(dark[0], 3), (Colors{dark[1], dark[2], dark[0]}));
    EXPECT_EQ(order.pinnedAfterDropping(dark[2], 0), (Colors{dark[2], dark[0], dark[1]}));
    EXPECT_EQ(order.pinnedAfterDropping(dark[1], 1), dark);
    EXPECT_EQ(order.pinnedAfterDropping(light[0], 1),
              (Colors{dark[0], light[0], dark[1], dark[2]}));
}

}  // namespace
}  // namespace vantorel
