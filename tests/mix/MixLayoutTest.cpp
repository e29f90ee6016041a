#include "mix/MixLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantorel {
namespace {

constexpr double margin = 10;

std::vector<HostRect> allOf(const MixFrames& frames)
{
    std::vector<HostRect> all;
    all.push_back(frames.choice);
    // Without the room for its mark, which the bar lies on.
    all.push_back(insetRect(frames.plane, 8, 8));
    all.push_back(frames.bar);
    for (const MixRowFrames& row : frames.rows)
        all.insert(all.end(), {row.label, row.track, row.number});
    return all;
}

TEST(MixLayoutTest, PartsAreInsideThePageAndApart)
{
    for (const HostSize page : {leastMixPage,
                                {256, 292},
                                {296, 364},
                                {329, 400},
                                {330, 400},
                                HostSize{616, 480},
                                {900, 600}}) {
        const auto all = allOf(mixFrames(page, 70));
        for (std::size_t i = 0; i < all.size(); ++i) {
            EXPECT_GE(all[i].x, margin);
            EXPECT_LE(all[i].maxX(), page.width - margin);
            EXPECT_GE(all[i].y, 4);
            EXPECT_LE(all[i].maxY(), page.height - 4);
            EXPECT_GT(all[i].width, 0);
            EXPECT_GT(all[i].height, 0);
            for (std::size_t j = 0; j < i; ++j) {
                const bool areApart = all[i].x >= all[j].maxX() || all[j].x >= all[i].maxX() ||
                                      all[i].y >= all[j].maxY() || all[j].y >= all[i].maxY();
                EXPECT_TRUE(areApart) << page.width << ": " << i << " and " << j;
            }
        }
    }
}

TEST(MixLayoutTest, WideEnoughPagesHaveWords)
{
    EXPECT_FALSE(mixFrames({329, 400}, 70).showsWords);
    const MixFrames frames = mixFrames({330, 400}, 70);
    EXPECT_TRUE(frames.showsWords);
    EXPECT_GE(frames.rows[0].label.width, 70);
}

TEST(MixLayoutTest, ThePlaneTakesTheRoomThatIsLeft)
{
    const double low = mixFrames({296, 292}, 70).plane.height;
    const double high = mixFrames({296, 492}, 70).plane.height;
    EXPECT_EQ(high - low, 200);
}

TEST(MixLayoutTest, ATooSmallPageIsCutOffBelow)
{
    const MixFrames small = mixFrames({100, 50}, 70);
    const MixFrames least = mixFrames(leastMixPage, 70);
    EXPECT_EQ(small.choice.maxY(), 50 - 4);
    EXPECT_EQ(small.plane.size(), least.plane.size());
}

}  // namespace
}  // namespace vantorel
