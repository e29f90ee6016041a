#include "host/HostBezierPath.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(HostBezierPathTest, ARectangleContainsItsLeftAndBottomEdges)
{
    HostBezierPath path;
    path.appendBezierPathWithRect({10, 20, 30, 40});
    EXPECT_TRUE(path.containsPoint({10, 20}));
    EXPECT_TRUE(path.containsPoint({39.9, 59.9}));
    EXPECT_FALSE(path.containsPoint({40, 30}));
    EXPECT_FALSE(path.containsPoint({20, 60}));
    EXPECT_FALSE(path.containsPoint({9.9, 30}));
}

TEST(HostBezierPathTest, AdjacentRectanglesShareNoPoint)
{
    for (double x = 0; x < 20; x += 0.5) {
        int owners = 0;
        for (int i = 0; i < 4; ++i) {
            HostBezierPath path;
            path.appendBezierPathWithRect({i * 5.0, 0, 5, 5});
            owners += path.containsPoint({x, 0}) ? 1 : 0;
        }
        EXPECT_EQ(owners, 1) << x;
    }
}

TEST(HostBezierPathTest, ContainmentDoesNotDependOnDirection)
{
    HostBezierPath path;
    path.moveToPoint({0, 0});
    path.lineToPoint({0, 10});
    path.lineToPoint({10, 10});
    path.lineToPoint({10, 0});
    path.closePath();
    EXPECT_TRUE(path.containsPoint({5, 5}));
}

TEST(HostBezierPathTest, EmptyingKeepsTheLineWidth)
{
    HostBezierPath path;
    EXPECT_EQ(path.lineWidth(), 1.0);
    path.setLineWidth(0.8);
    path.appendBezierPathWithRect({0, 0, 1, 1});
    path.removeAllPoints();
    EXPECT_TRUE(path.isEmpty());
    EXPECT_EQ(path.lineWidth(), 0.8);
    EXPECT_FALSE(path.containsPoint({0, 0}));
}

}  // namespace
}  // namespace vantorel
