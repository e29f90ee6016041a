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

TEST(HostBezierPathTest, SlopedEdgesAreWhereTheyAreDrawn)
{
    HostBezierPath path;
    path.moveToPoint({20, 10});
    path.lineToPoint({30, 10});
    path.lineToPoint({25, 30});
    path.closePath();
    // At 15, the triangle reaches from 21.25 to 28.75; at 20, from 22.5 to 27.5.
    for (const HostPoint inside : {HostPoint{21.3, 15}, HostPoint{28.7, 15}, HostPoint{22.6, 20},
                                   HostPoint{27.4, 20}, HostPoint{25, 29.9}})
        EXPECT_TRUE(path.containsPoint(inside)) << inside.x << ' ' << inside.y;
    for (const HostPoint outside : {HostPoint{21.2, 15}, HostPoint{28.8, 15}, HostPoint{22.4, 20},
                                    HostPoint{27.6, 20}, HostPoint{25, 30}, HostPoint{25, 9.9}})
        EXPECT_FALSE(path.containsPoint(outside)) << outside.x << ' ' << outside.y;
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

TEST(HostBezierPathTest, PartsThatAreOpenContainWhatTheyWouldIfClosed)
{
    HostBezierPath path;
    for (const double x : {0.0, 20.0}) {
        path.moveToPoint({x, 0});
        path.lineToPoint({x, 10});
        path.lineToPoint({x + 10, 10});
        path.lineToPoint({x + 10, 0});
    }
    for (const double x : {5.0, 25.0})
        EXPECT_TRUE(path.containsPoint({x, 5})) << x;
    for (const double x : {-5.0, 15.0, 35.0})
        EXPECT_FALSE(path.containsPoint({x, 5})) << x;
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
