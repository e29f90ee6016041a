#include "hosts/qt/TextScale.h"
#include "panel/window/PanelLayout.h"

#include <gtest/gtest.h>

#include <array>

namespace vantorel {
namespace {

QSize points(int width, int height)
{
    return {scaled(width), scaled(height)};
}

const QSize hexPage{180, 286};
const QSize dialogPage{525, 300};

PanelRoom roomFor(QSize window, QSize leastPage)
{
    PanelRoom room;
    room.window = points(window.width(), window.height());
    room.leastPage = points(leastPage.width(), leastPage.height());
    return room;
}

std::array<QRect, 10> allPlaces(const PanelPlaces& places)
{
    return {places.band,  places.field, places.pick,       places.lines, places.forms,
            places.pages, places.page,  places.lastColors, places.foot,  places.problems};
}

TEST(PanelLayoutTest, APageHasTheHeightOfTheWindowLessTheOtherParts)
{
    const PanelPlaces places = panelPlaces(roomFor({300, 528}, hexPage));
    EXPECT_EQ(places.page.size(), points(296, 292));
    EXPECT_EQ(places.band.topLeft(), QPoint(scaled(12), scaled(12)));
    EXPECT_EQ(places.band.width(), scaled(300) - 2 * scaled(12));
    EXPECT_EQ(places.pick.right(), places.band.right()) << "one right edge";
    EXPECT_EQ(scaled(528) - places.lastColors.bottom() - 1, scaled(12));
    EXPECT_TRUE(places.forms.isEmpty());
}

TEST(PanelLayoutTest, NothingOverlapsOrLeavesTheWindowAtAnySize)
{
    for (const QSize least : {hexPage, dialogPage}) {
        for (int width = least.width() + 4; width < 1000; width += 7) {
            for (const int message : {0, 20, 90}) {
                PanelRoom room = roomFor({width, 0}, least);
                room.message = message;
                room.foot = scaled(42);
                room.problems = scaled(20);
                room.window.setHeight(leastWindow(room).height() + width % 5 * 60);
                const auto places = allPlaces(panelPlaces(room));
                for (std::size_t i = 0; i < places.size(); ++i) {
                    if (places[i].isEmpty()) continue;
                    EXPECT_TRUE(QRect(QPoint(), room.window).contains(places[i]))
                        << width << ' ' << i;
                    for (std::size_t j = 0; j < i; ++j)
                        EXPECT_FALSE(places[i].intersects(places[j]))
                            << width << ' ' << i << ' ' << j;
                }
                EXPECT_GE(places[3].height(), message) << "a message is readable";
                EXPECT_GE(places[6].width(), room.leastPage.width());
                EXPECT_GE(places[6].height(), room.leastPage.height());
            }
        }
    }
}

TEST(PanelLayoutTest, AWindowIsFoundForEverySizeOfThePage)
{
    for (int width = 180; width < 1200; ++width) {
        const PanelRoom room = roomFor({}, hexPage);
        PanelRoom found = room;
        found.window = windowForPage(room, points(width, 340));
        EXPECT_EQ(panelPlaces(found).page.size(), points(width, 340));
    }
}

TEST(PanelLayoutTest, ALowWindowGivesUpTheLastColoursThenALineThenPartOfTheBand)
{
    const PanelPlaces whole = panelPlaces(roomFor({300, 522}, hexPage));
    EXPECT_FALSE(whole.lastColors.isEmpty());
    const PanelPlaces lower = panelPlaces(roomFor({300, 500}, hexPage));
    EXPECT_TRUE(lower.lastColors.isEmpty());
    EXPECT_EQ(lower.lines.height(), whole.lines.height());
    const PanelPlaces low = panelPlaces(roomFor({300, 470}, hexPage));
    EXPECT_LT(low.lines.height(), whole.lines.height());
    EXPECT_EQ(low.band.height(), whole.band.height());
    PanelRoom lowest = roomFor({300, 0}, hexPage);
    lowest.window.setHeight(leastWindow(lowest).height());
    EXPECT_EQ(panelPlaces(lowest).band.height(), scaled(40));
    EXPECT_EQ(panelPlaces(lowest).page.height(), lowest.leastPage.height());
}

TEST(PanelLayoutTest, AWideWindowHasTwoColumnsIfThePageFitsIntoOne)
{
    EXPECT_TRUE(panelPlaces(roomFor({479, 528}, hexPage)).forms.isEmpty());
    const PanelPlaces wide = panelPlaces(roomFor({480, 528}, hexPage));
    EXPECT_FALSE(wide.forms.isEmpty());
    EXPECT_GT(wide.page.left(), wide.band.right());
    EXPECT_EQ(wide.pages.top(), wide.band.top());
    EXPECT_TRUE(panelPlaces(roomFor({529, 528}, dialogPage)).forms.isEmpty());
    EXPECT_FALSE(panelPlaces(roomFor({900, 528}, dialogPage)).forms.isEmpty());
}

}  // namespace
}  // namespace vantorel
