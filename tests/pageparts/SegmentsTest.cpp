#include "pageparts/Segments.h"

#include "testing/headless/HeadlessDesktop.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

class SegmentsTest : public testing::Test {
protected:
    SegmentsTest()
    {
        _segments.makeViews(_desktop,
                            {.identifier = "frame",
                             .buttonIdentifier = "segment",
                             .accessibleName = u"Choice",
                             .titles = {u"a", u"long title", u"mid"}},
                            [this](std::size_t segment) { _chosen.push_back(segment); });
    }
    [[nodiscard]] HeadlessButton& button(int number)
    {
        return *_desktop.interfaceFactory().control<HeadlessButton>("segment" +
                                                                    std::to_string(number));
    }

    HeadlessDesktop _desktop{HeadlessDesktop::Options{}};
    std::vector<std::size_t> _chosen;
    Segments _segments;
};

TEST_F(SegmentsTest, OneIsChosenAndClicksAreReported)
{
    _segments.show(1);
    EXPECT_EQ(button(1).state(), 0);
    EXPECT_EQ(button(2).state(), 1);
    button(3).click();
    button(2).click();
    EXPECT_EQ(_chosen, (std::vector<std::size_t>{2, 1}));
}

TEST_F(SegmentsTest, SegmentsFillTheFrame)
{
    _segments.layOut({10, 20, 308, 28});
    EXPECT_EQ(_segments.view().frame(), (HostRect{10, 20, 308, 28}));
    EXPECT_EQ(button(1).frame().width, 100);
    EXPECT_EQ(button(2).frame().x, 104);
    EXPECT_EQ(button(3).frame().maxX(), 306);
}

TEST_F(SegmentsTest, WidthsFollowTheTitlesIfWanted)
{
    const double least = _segments.leastWidth();
    _segments.layOutByTitles({0, 0, least, 28});
    EXPECT_GT(button(2).frame().width, 2 * button(1).frame().width);
    EXPECT_NEAR(button(3).frame().maxX(), least - 2, 1e-9);
    const double before = button(1).frame().width;
    _segments.layOutByTitles({0, 0, least + 30, 28});
    EXPECT_NEAR(button(1).frame().width, before + 10, 1e-9) << "the rest is shared alike";
}

}  // namespace
}  // namespace vantorel
