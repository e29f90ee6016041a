#include "hosts/common/PopUpList.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr PixelRect screen{0, 0, 800, 600};

PixelRect placed(PixelRect button, int rows)
{
    return placeOfPopUpList({.button = button,
                             .room = screen,
                             .rows = rows,
                             .rowHeight = 20,
                             .width = 150,
                             .frames = 4});
}

TEST(PopUpListTest, OpensBelowItsButtonOrWhereThereIsMoreRoom)
{
    EXPECT_EQ(placed({10, 100, 90, 24}, 5), (PixelRect{10, 124, 150, 104}));
    EXPECT_EQ(placed({10, 500, 200, 24}, 5), (PixelRect{10, 396, 200, 104}));
    EXPECT_EQ(placed({10, 200, 90, 24}, 1000), (PixelRect{10, 224, 150, 376}));
}

TEST(PopUpListTest, StaysOnTheScreen)
{
    EXPECT_EQ(placed({750, 100, 90, 24}, 5).x, 650);
    EXPECT_EQ(placed({-30, 100, 90, 24}, 5).x, 0);
}

TEST(PopUpListTest, RowsHoldTextAndPictures)
{
    EXPECT_EQ(popUpRowHeight(13, 1), 22);
    EXPECT_EQ(popUpRowHeight(30, 1), 36);
    EXPECT_EQ(popUpRowHeight(13, 1.5), 30);
}

TEST(PopUpListTest, OnlyTheLongestTitlesAreMeasured)
{
    HostMenu menu(5000);
    for (HostMenuItem& item : menu)
        item.title = u"short";
    menu[4000].title = std::u16string(12, u'w');
    EXPECT_EQ(itemsToMeasure(menu), std::vector<const HostMenuItem*>{&menu[4000]});
    menu[4000].title = std::u16string(100000, u'w');
    menu[2000].title = std::u16string(420, u'w');
    EXPECT_EQ(itemsToMeasure(menu), (std::vector<const HostMenuItem*>{&menu[2000], &menu[4000]}))
        << "both are as wide as the widest list";
}

TEST(ReleaseRuleTest, OnlyAPressOrADragMakesTheReleaseChoose)
{
    ReleaseRule still(10);
    still.pointerMovedInside({100, 100});
    still.pointerMovedInside({105, 104});
    EXPECT_FALSE(still.releaseChooses());
    still.pointerMovedInside({105, 105});
    EXPECT_TRUE(still.releaseChooses());

    ReleaseRule pressed(10);
    pressed.buttonWasPressed();
    EXPECT_TRUE(pressed.releaseChooses());
}

}  // namespace
}  // namespace vantorel
