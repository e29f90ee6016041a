#include "view/KeyMoves.h"

#include <gtest/gtest.h>

#include <set>

namespace vantorel {
namespace {

TEST(KeyMovesTest, SliderKeysChangeTheDigitOrTheColumn)
{
    const SliderCell green{1, 0, 7};
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::up), (SliderCell{1, 0, 8}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::down), (SliderCell{1, 0, 6}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::pageUp), (SliderCell{1, 0, 15}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::pageDown), (SliderCell{1, 0, 0}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::left), (SliderCell{1, 1, 7}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::right), (SliderCell{2, 1, 7}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::home), (SliderCell{0, 1, 7}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::end), (SliderCell{2, 0, 7}));
    EXPECT_EQ(sliderCellAfterKey(green, HostKey::pick), green);
}

TEST(KeyMovesTest, SliderKeysStopAtTheEdges)
{
    const SliderCell first{0, 1, 15};
    EXPECT_EQ(sliderCellAfterKey(first, HostKey::left), first);
    EXPECT_EQ(sliderCellAfterKey(first, HostKey::up), first);
    const SliderCell last{2, 0, 0};
    EXPECT_EQ(sliderCellAfterKey(last, HostKey::right), last);
    EXPECT_EQ(sliderCellAfterKey(last, HostKey::down), last);
}

TEST(KeyMovesTest, PaletteKeysMoveBetweenSwatches)
{
    // Ten swatches in rows of four: the last row has two.
    const PaletteGrid grid{4, 3, {10, 10}};
    struct Row {
        std::size_t from;
        HostKey key;
        std::size_t to;
    };
    for (const auto& [from, key, to] :
         {Row{5, HostKey::left, 4}, Row{4, HostKey::left, 4}, Row{5, HostKey::right, 6},
          Row{7, HostKey::right, 7}, Row{9, HostKey::right, 9}, Row{5, HostKey::up, 1},
          Row{1, HostKey::up, 1}, Row{5, HostKey::down, 9}, Row{6, HostKey::down, 6},
          Row{6, HostKey::home, 4}, Row{8, HostKey::end, 9}, Row{9, HostKey::pageUp, 1},
          Row{1, HostKey::pageDown, 9}, Row{3, HostKey::pageDown, 7}, Row{3, HostKey::pick, 3}}) {
        EXPECT_EQ(paletteIndexAfterKey(grid, 10, from, key), to)
            << from << ", key " << static_cast<int>(key);
    }
}

TEST(KeyMovesTest, EveryTriangleOfTheWheelIsReachedByArrows)
{
    for (const int rings : {2, 4, 8, 17}) {
        const auto cells = wheelCells(wheelPlace({240, 190}, rings));
        for (const std::size_t start : {std::size_t{0}, cells.size() - 1}) {
            std::set<std::size_t> reached{start};
            std::vector<std::size_t> fresh{start};
            while (!fresh.empty()) {
                const std::size_t index = fresh.back();
                fresh.pop_back();
                for (const HostKey key :
                     {HostKey::left, HostKey::right, HostKey::up, HostKey::down}) {
                    const std::size_t next = wheelIndexAfterKey(cells, index, key);
                    if (reached.insert(next).second) fresh.push_back(next);
                }
            }
            EXPECT_EQ(reached.size(), cells.size()) << rings << " rings from " << start;
        }
    }
}

TEST(KeyMovesTest, AnArrowGoesBackWhereItsOppositeCameFromInTheMiddleOfTheWheel)
{
    const auto cells = wheelCells(wheelPlace({240, 190}, 8));
    const std::size_t grey = cells.size() - 1;
    EXPECT_EQ(
        wheelIndexAfterKey(cells, wheelIndexAfterKey(cells, grey, HostKey::up), HostKey::down),
        grey);
    EXPECT_EQ(
        wheelIndexAfterKey(cells, wheelIndexAfterKey(cells, grey, HostKey::right), HostKey::left),
        grey);
    const std::size_t end = wheelIndexAfterKey(cells, grey, HostKey::end);
    EXPECT_EQ(wheelIndexAfterKey(cells, end, HostKey::right), end);
    EXPECT_NE(end, grey);
}

TEST(KeyMovesTest, AWalkOverTheWheel)
{
    const auto cells = wheelCells(wheelPlace({240, 190}, 8));
    struct Step {
        HostKey key;
        std::size_t index;
    };
    std::size_t index = cells.size() - 1;  // grey, in the middle
    for (const auto& [key, expected] : {
             Step{HostKey::up, 378},      Step{HostKey::up, 379},    Step{HostKey::up, 364},
             Step{HostKey::right, 367},   Step{HostKey::right, 368}, Step{HostKey::up, 343},
             Step{HostKey::left, 366},    Step{HostKey::left, 365},  Step{HostKey::left, 336},
             Step{HostKey::left, 335},    Step{HostKey::left, 294},  Step{HostKey::down, 293},
             Step{HostKey::down, 292},    Step{HostKey::down, 291},  Step{HostKey::down, 290},
             Step{HostKey::right, 331},   Step{HostKey::pageUp, 25}, Step{HostKey::home, 15},
             Step{HostKey::pageDown, 89}, Step{HostKey::end, 60},
         }) {
        index = wheelIndexAfterKey(cells, index, key);
        EXPECT_EQ(index, expected) << "after key " << static_cast<int>(key);
    }
}

}  // namespace
}  // namespace vantorel
