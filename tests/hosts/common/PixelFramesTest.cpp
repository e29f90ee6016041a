#include "hosts/common/PixelFrames.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

TEST(PixelFramesTest, YIsTurnedAndBoundsHaveTheirOwnOrigin)
{
    EXPECT_EQ(pixelFrame({10, 20, 30, 40}, {0, 0, 200, 100}, 1), (PixelRect{10, 40, 30, 40}));
    EXPECT_EQ(pixelFrame({10, 20, 30, 40}, {5, 10, 200, 100}, 2), (PixelRect{10, 100, 60, 80}));
}

TEST(PixelFramesTest, NeighboursStayNeighbours)
{
    const HostRect bounds{0, 0, 100, 100};
    for (const double scale : {1.0, 1.25, 1.5}) {
        const PixelRect left = pixelFrame({0.4, 0, 20.3, 10}, bounds, scale);
        const PixelRect right = pixelFrame({20.7, 0, 20.3, 10}, bounds, scale);
        EXPECT_EQ(left.x + left.width, right.x);
    }
}

TEST(PixelFramesTest, PlacesBeyondAllScreensAreWithinTheRangeOfToolkits)
{
    const double most = std::numeric_limits<double>::max();
    EXPECT_EQ(pixelFrame({-most, 0, 10, 10}, {0, 0, 100, 100}, 3).x, -100'000'000);
    EXPECT_EQ(pixelFrame({most / 4, 0, 10, 10}, {0, 0, 100, 100}, 3).x, 100'000'000);
}

TEST(PixelFramesTest, PointsGoThereAndBack)
{
    const HostRect bounds{3, 4, 50, 60};
    const PixelPoint pixel = pixelPoint({13, 24}, bounds, 1.5);
    EXPECT_EQ(pixel, (PixelPoint{15, 60}));
    EXPECT_EQ(viewPoint(pixel, bounds, 1.5), (HostPoint{13, 24}));
}

TEST(PixelFramesTest, OnlyViewsInsideTheirSuperviewAndNotParkedAreInSight)
{
    HostView page({0, 0, 200, 100});
    HostView view({10, 10, 20, 20});
    EXPECT_FALSE(isInSight(view, 1));
    page.addSubview(view);
    EXPECT_TRUE(isInSight(view, 1));
    view.setParked(true);
    EXPECT_FALSE(isInSight(view, 1));
    view.setParked(false);
    for (const HostPoint outside : {HostPoint{-500, 10}, {200, 10}, {10, 100}, {10, -20}}) {
        view.setFrameOrigin(outside);
        EXPECT_FALSE(isInSight(view, 1.25)) << outside.x << ", " << outside.y;
    }
    view.setFrame({10, 10, 0, 20});
    EXPECT_FALSE(isInSight(view, 1));
}

}  // namespace
}  // namespace vantorel
