#include "view/PaletteGeometry.h"
#include "view/SliderGeometry.h"
#include "view/WheelGeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vantorel {
namespace {

constexpr HostRect bounds{0, 0, 240, 194};

TEST(SliderGeometryTest, EveryCellIsFoundAtItsCornerAndCentre)
{
    const HostRect matrix = sliderMatrixRect(bounds);
    const HostSize size = sliderCellSize(matrix);
    for (int component = 0; component < 3; ++component) {
        for (int digit = 0; digit < 2; ++digit) {
            for (int value = 0; value < 16; ++value) {
                const SliderCell cell{component, digit, value};
                const HostRect rect = sliderCellRect(matrix, size, cell);
                EXPECT_EQ(sliderCellAtPoint(matrix, {rect.midX(), rect.midY()}), cell);
                EXPECT_EQ(sliderCellAtPoint(matrix, {rect.x + 0.001, rect.y + 0.001}), cell);
            }
        }
    }
}

TEST(SliderGeometryTest, GapsAndTheOutsideContainNoCell)
{
    const HostRect matrix = sliderMatrixRect(bounds);
    const HostSize size = sliderCellSize(matrix);
    for (const int column : {0, 2, 4, 5, 7, 9, 10, 12, 14}) {
        EXPECT_FALSE(sliderCellAtPoint(matrix, {matrix.x + (column + 0.5) * size.width, 50}));
    }
    const double inColumn = matrix.x + 1.5 * size.width;
    EXPECT_TRUE(sliderCellAtPoint(matrix, {inColumn, matrix.y}));
    EXPECT_FALSE(sliderCellAtPoint(matrix, {inColumn, matrix.maxY()}));
    EXPECT_FALSE(sliderCellAtPoint(matrix, {inColumn, matrix.y - 0.001}));
    EXPECT_FALSE(sliderCellAtPoint(matrix, {std::nan(""), 50}));
    EXPECT_FALSE(sliderCellAtPoint(sliderMatrixRect({0, 0, 1, 5}), {0, 0}));
    EXPECT_TRUE(sliderCellAtPoint(matrix, {inColumn, std::nextafter(matrix.maxY(), 0.0)})->value ==
                15);
}

struct GridRow {
    std::size_t count;
    HostSize rect;
    std::uint64_t across, down;
};

class PaletteGridTest : public testing::TestWithParam<GridRow> {};

TEST_P(PaletteGridTest, DividesTheRectangle)
{
    const auto& [count, rect, across, down] = GetParam();
    const PaletteGrid grid = paletteGrid(count, rect);
    EXPECT_EQ(grid.across, across);
    EXPECT_EQ(grid.down, down);
    EXPECT_GE(grid.across * grid.down, count);
}

INSTANTIATE_TEST_SUITE_P(
    Counts, PaletteGridTest,
    testing::Values(GridRow{216, {300, 200}, 24, 9}, GridRow{216, {200, 300}, 18, 12},
                    GridRow{216, {100, 200}, 12, 18}, GridRow{216, {100, 300}, 12, 18},
                    GridRow{17, {100, 100}, 4, 5}, GridRow{147, {200, 100}, 17, 9},
                    GridRow{5, {1, 1000}, 5, 1}, GridRow{1, {50, 50}, 1, 1},
                    GridRow{3, {-5, 10}, 3, 1}, GridRow{0, {50, 50}, 0, 0}));

TEST(PaletteGeometryTest, AClickAtTheCentreOfASwatchSelectsIt)
{
    const HostSize rect{234, 185};
    for (const std::size_t count : {17U, 146U, 216U}) {
        const PaletteGrid grid = paletteGrid(count, rect);
        for (std::size_t i = 0; i < count; ++i) {
            const HostRect swatch = paletteSwatchRect(grid, i, rect.height);
            EXPECT_EQ(paletteIndexAtPoint(grid, {swatch.midX(), swatch.midY()}, 194), i);
        }
    }
}

TEST(PaletteGeometryTest, EmptyGridsAndImpossiblePointsHaveNoIndex)
{
    EXPECT_FALSE(paletteIndexAtPoint({}, {1, 1}, 100));
    const PaletteGrid grid = paletteGrid(17, {100, 100});
    EXPECT_FALSE(paletteIndexAtPoint(grid, {std::nan(""), 1}, 100));
    EXPECT_FALSE(paletteIndexAtPoint(grid, {1, 1e300}, 100));
    EXPECT_FALSE(paletteIndexAtPoint(grid, {1, 500}, 100));
}

class WheelTest : public testing::TestWithParam<int> {
protected:
    WheelPlace _place = wheelPlace({234, 185}, GetParam());
};

TEST_P(WheelTest, CellsTileTheHexagonAndEachCentroidPicksItsCell)
{
    const auto cells = wheelCells(_place);
    EXPECT_EQ(cells.size(), static_cast<std::size_t>(6 * GetParam() * GetParam()));
    double area = 0;
    for (const WheelCell& cell : cells) {
        const auto& [a, b, c] = cell.corners;
        area += std::abs((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y)) / 2;
        const HostPoint centroid{(a.x + b.x + c.x) / 3, (a.y + b.y + c.y) / 3};
        const auto found = wheelCellAtPoint(_place, centroid);
        ASSERT_TRUE(found.has_value());
        EXPECT_EQ(found->corners, cell.corners);
    }
    // A hexagon of size n holds 6 n² triangles of s by s.
    EXPECT_NEAR(area, 3.0 * GetParam() * GetParam() * _place.unit * _place.unit, 1e-6);
}

TEST_P(WheelTest, APointJustOutsideTheHexagonIsInNoCell)
{
    const auto outline = wheelOutline(_place);
    EXPECT_FALSE(wheelCellAtPoint(_place, {outline[0].x - 0.01, _place.center.y}));
    EXPECT_FALSE(wheelCellAtPoint(_place, {_place.center.x, outline[2].y + 0.01}));
    EXPECT_TRUE(wheelCellAtPoint(_place, {outline[0].x + 0.01, _place.center.y}));
}

INSTANTIATE_TEST_SUITE_P(Rings, WheelTest, testing::Range(2, 18));

struct RingRow {
    int rings, ring, high, low;
};

class WheelColorsTest : public testing::TestWithParam<RingRow> {};

TEST_P(WheelColorsTest, RingsRunFromTintsToShades)
{
    const auto& [rings, ring, high, low] = GetParam();
    const auto cells = wheelCells(wheelPlace({200, 200}, rings));
    std::size_t first = 0;
    for (int m = rings; m > ring; --m)
        first += static_cast<std::size_t>(6 * (2 * m - 1));
    EXPECT_EQ(cells[first].red, high);
    EXPECT_EQ(cells[first].green, low);
    EXPECT_EQ(cells[first].blue, low);
}

INSTANTIATE_TEST_SUITE_P(Rings, WheelColorsTest,
                         testing::Values(RingRow{8, 8, 255, 0}, RingRow{8, 7, 255, 64},
                                         RingRow{8, 6, 255, 128}, RingRow{8, 5, 255, 192},
                                         RingRow{8, 4, 192, 0}, RingRow{8, 3, 129, 0},
                                         RingRow{8, 2, 66, 0}, RingRow{4, 4, 255, 0},
                                         RingRow{4, 3, 255, 128}, RingRow{4, 2, 128, 0}));

TEST(WheelGeometryTest, TheCentreIsSixGreys)
{
    const auto cells = wheelCells(wheelPlace({200, 200}, 4));
    const std::array greys{192, 255, 0, 48, 96, 144};
    for (std::size_t i = 0; i < 6; ++i) {
        const WheelCell& cell = cells[cells.size() - 6 + i];
        EXPECT_TRUE(cell.center);
        EXPECT_EQ(cell.red, greys[i]);
        EXPECT_EQ(cell.blue, greys[i]);
    }
}

TEST(WheelGeometryTest, StoredRingCountsAreClampedWhenDrawn)
{
    EXPECT_EQ(drawnRingCount(0), 2);
    EXPECT_EQ(drawnRingCount(-5), 2);
    EXPECT_EQ(drawnRingCount(17), 17);
    EXPECT_EQ(drawnRingCount(std::numeric_limits<std::int64_t>::max()), mostDrawnRings);
}

}  // namespace
}  // namespace vantorel
