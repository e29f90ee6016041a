#include "screenpick/PixelCursor.h"

#include <gtest/gtest.h>

namespace vantorel {

namespace {

// A second screen to the right, lower and smaller.
const std::vector<QRect> screens{{0, 0, 100, 100}, {100, 50, 60, 40}};

struct Row {
    const char* what;
    QPoint mouse;
    QPoint step;
    QPoint position;
};

class PixelCursorTest : public testing::TestWithParam<Row> {};

TEST_P(PixelCursorTest, stepsToTheEdgesOfTheScreens)
{
    PixelCursor cursor(screens, GetParam().mouse);
    cursor.step(GetParam().step);
    EXPECT_TRUE(cursor.position() == GetParam().position)
        << cursor.position().x() << ", " << cursor.position().y();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PixelCursorTest,
    testing::Values(Row{"stays", {30, 40}, {0, 0}, {30, 40}},
                    Row{"one pixel", {30, 40}, {1, 0}, {31, 40}},
                    Row{"ten pixels", {30, 40}, {0, -10}, {30, 30}},
                    Row{"to the edge", {30, 4}, {0, -10}, {30, 0}},
                    Row{"not beyond the edge", {0, 0}, {-1, 0}, {0, 0}},
                    Row{"onto the next screen", {99, 60}, {1, 0}, {100, 60}},
                    Row{"far onto the next screen", {95, 60}, {10, 0}, {105, 60}},
                    Row{"no screen at that height", {95, 20}, {10, 0}, {99, 20}},
                    Row{"last pixel of all", {159, 89}, {1, 0}, {159, 89}},
                    Row{"begins on the nearest screen", {130, 20}, {0, 0}, {130, 50}}),
    [](const auto& test) {
        std::string name = test.param.what;
        for (char& c : name)
            if (c == ' ') c = '_';
        return name;
    });

TEST(PixelCursor, followsTheMouse)
{
    PixelCursor cursor(screens, {10, 10});
    cursor.mouseMovedTo({20, 15});
    EXPECT_TRUE(cursor.position() == QPoint(20, 15));
    cursor.mouseMovedTo({130, 70});
    EXPECT_TRUE(cursor.position() == QPoint(130, 70));
}

TEST(PixelCursor, keepsTheOffsetMadeByKeys)
{
    PixelCursor cursor(screens, {10, 10});
    cursor.step({3, 0});
    cursor.mouseMovedTo({10, 10});
    EXPECT_TRUE(cursor.position() == QPoint(13, 10)) << "a click does not move it";
    cursor.mouseMovedTo({11, 12});
    EXPECT_TRUE(cursor.position() == QPoint(14, 12));
}

TEST(PixelCursor, dropsTheOffsetAtAnEdge)
{
    PixelCursor cursor(screens, {10, 10});
    cursor.step({5, -3});
    cursor.mouseMovedTo({0, 20});
    EXPECT_TRUE(cursor.position() == QPoint(0, 17)) << "in that direction only";
    cursor.mouseMovedTo({1, 20});
    EXPECT_TRUE(cursor.position() == QPoint(1, 17));
}

TEST(PixelCursor, doesNotLeaveTheScreensWithTheMouse)
{
    PixelCursor cursor(screens, {90, 20});
    cursor.step({8, 0});
    cursor.mouseMovedTo({95, 20});
    EXPECT_TRUE(cursor.position() == QPoint(99, 20));
    cursor.mouseMovedTo({94, 20});
    EXPECT_TRUE(cursor.position() == QPoint(98, 20)) << "the rest of the distance is gone";
}

TEST(PixelCursor, canStepAwayFromAMouseAtTheEdge)
{
    PixelCursor cursor(screens, {0, 20});
    cursor.step({4, 0});
    cursor.mouseMovedTo({0, 25});
    EXPECT_TRUE(cursor.position() == QPoint(4, 25));
}

}  // namespace
}  // namespace vantorel
