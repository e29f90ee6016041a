#include "scales/ScalesLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace vantorel {
namespace {

constexpr std::size_t count = 5;

double heightOf(std::size_t section, double)
{
    return section == 1 ? 170 : 130;
}

ScalesFrames framesOf(HostSize page, std::size_t chosen = 0)
{
    return scalesFrames(page, count, chosen, heightOf);
}

std::size_t shownIn(const ScalesFrames& frames)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        frames.sections, [](const auto& section) { return section.has_value(); }));
}

TEST(ScalesLayoutTest, ASmallPageShowsTheChosenSectionBelowAChoice)
{
    for (std::size_t chosen = 0; chosen < count; ++chosen) {
        const ScalesFrames frames = framesOf({260, 292}, chosen);
        ASSERT_TRUE(frames.choice);
        EXPECT_EQ(shownIn(frames), 1U);
        ASSERT_TRUE(frames.sections[chosen]);
        EXPECT_LE(frames.sections[chosen]->maxY(), frames.choice->y);
        EXPECT_GE(frames.sections[chosen]->y, 0);
        EXPECT_EQ(frames.choice->maxX(), 250);
    }
}

TEST(ScalesLayoutTest, NeighboursOfTheChosenSectionFillTheRoom)
{
    const auto shown = [](std::size_t chosen) {
        std::string text;
        for (const auto& section : framesOf({300, 500}, chosen).sections)
            text += section ? 'x' : '-';
        return text;
    };
    EXPECT_TRUE(framesOf({300, 500}, 2).choice);
    EXPECT_EQ(shown(0), "xxx--");
    EXPECT_EQ(shown(1), "-xxx-");
    EXPECT_EQ(shown(2), "--xxx");
    EXPECT_EQ(shown(4), "--xxx") << "the room is filled from before it";
}

TEST(ScalesLayoutTest, AHighPageShowsAllSectionsInAColumn)
{
    const ScalesFrames frames = framesOf({300, 800});
    EXPECT_FALSE(frames.choice);
    ASSERT_EQ(shownIn(frames), count);
    for (std::size_t i = 1; i < count; ++i)
        EXPECT_LT(frames.sections[i]->maxY(), frames.sections[i - 1]->y) << i;
    EXPECT_GE(frames.sections.back()->y, 0);
}

TEST(ScalesLayoutTest, AWidePageShowsAllSectionsInTwoColumns)
{
    const ScalesFrames frames = framesOf({560, 450});
    EXPECT_FALSE(frames.choice);
    ASSERT_EQ(shownIn(frames), count);
    EXPECT_EQ(frames.sections[0]->x, frames.sections[1]->x);
    EXPECT_GT(frames.sections[2]->x, frames.sections[1]->maxX());
    EXPECT_EQ(frames.sections[0]->maxY(), frames.sections[2]->maxY());
    EXPECT_TRUE(framesOf({560, 300}).choice) << "it is not high enough";
}

TEST(ScalesLayoutTest, ATooSmallPageIsLaidOutFromItsUpperLeftCorner)
{
    const ScalesFrames small = framesOf({10, 10});
    ASSERT_TRUE(small.choice);
    EXPECT_EQ(small.choice->maxY(), 6);
    EXPECT_EQ(small.choice->width, leastScalesPage.width - 20);
}

}  // namespace
}  // namespace vantorel
