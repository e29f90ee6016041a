#include "hosts/common/PaintedLines.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

HostBezierPath pathOf(std::initializer_list<HostPoint> points, bool closed)
{
    HostBezierPath path;
    for (const HostPoint& point : points)
        path.isEmpty() ? path.moveToPoint(point) : path.lineToPoint(point);
    if (closed) path.closePath();
    return path;
}

TEST(PaintedLinesTest, KnowsTheShapesThatArePaintedFast)
{
    HostBezierPath rect;
    rect.appendBezierPathWithRect({1, 2, 3, 4});
    EXPECT_EQ(uprightRect(rect), (HostRect{1, 2, 3, 4}));
    EXPECT_TRUE(isPolygon(rect));

    const auto triangle = pathOf({{0, 0}, {4, 0}, {2, 3}}, true);
    EXPECT_EQ(uprightRect(triangle), std::nullopt);
    EXPECT_TRUE(isPolygon(triangle));
    EXPECT_FALSE(isOpenLine(triangle));

    const auto line = pathOf({{0, 0}, {4, 0}, {4, 3}}, false);
    EXPECT_FALSE(isPolygon(line));
    EXPECT_TRUE(isOpenLine(line));
    EXPECT_EQ(uprightRect(pathOf({{0, 0}, {4, 1}, {4, 3}, {0, 3}}, true)), std::nullopt);
}

TEST(PaintedLinesTest, TheFourBarsFrameARectangleWithoutOverlapping)
{
    const auto bars = barsOfStroke({10, 10, 30, 20}, 2, 1);
    EXPECT_EQ(bars[0], (PaintedBar{9, 9, 31, 11}));
    EXPECT_EQ(bars[1], (PaintedBar{9, 19, 31, 21}));
    EXPECT_EQ(bars[2], (PaintedBar{9, 11, 11, 19}));
    EXPECT_EQ(bars[3], (PaintedBar{29, 11, 31, 19}));
}

TEST(PaintedLinesTest, LinesOfTwoWidthsLieEvenlyWithinEachOther)
{
    const auto wide = barsOfStroke({10.3, 10.3, 30.3, 20.3}, 3, 1);
    const auto narrow = barsOfStroke({10.3, 10.3, 30.3, 20.3}, 1, 1);
    EXPECT_EQ(narrow[2].left - wide[2].left, 1);
    EXPECT_EQ(wide[2].right - narrow[2].right, 1);
    EXPECT_EQ(wide[3].right - narrow[3].right, 1);
}

TEST(PaintedLinesTest, EdgesAreOnPixelsOfTheDevice)
{
    for (const PaintedBar& bar : barsOfStroke({1.13, 2.21, 8.8, 9.9}, 0.2, 2)) {
        for (const double edge : {bar.left, bar.top, bar.right, bar.bottom})
            EXPECT_EQ(edge * 2, static_cast<int>(edge * 2));
        EXPECT_GE(bar.width(), 0.5);
        EXPECT_GE(bar.height(), 0.5);
    }
    EXPECT_EQ(middleOfPixel(3.2, 1), 3.5);
    EXPECT_EQ(middleOfPixel(3.2, 2), 3.25);
    EXPECT_EQ(halfStrokeWidth(0.1, 2), 0.25);
    EXPECT_EQ(halfStrokeWidth(2.6, 1), 1.5);
}

TEST(PaintedLinesTest, ARectangleWithoutAreaIsOneBar)
{
    const auto bars = barsOfStroke({5, 5, 5, 5}, 1, 1);
    EXPECT_EQ(bars[0].height(), 0);
    EXPECT_EQ(bars[2].height(), 0);
}

}  // namespace
}  // namespace vantorel
