#include "host/HostView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

namespace vantorel {
namespace {

struct ResizingRow {
    HostResizing rule;
    HostRect after;  ///< of {10, 20, 30, 40}, when the superview grows by 60 and 90
};

class HostViewResizingTest : public testing::TestWithParam<ResizingRow> {};

TEST_P(HostViewResizingTest, SharesGrowthAmongFlexibleParts)
{
    HostView superview({0, 0, 100, 100});
    HostView view({10, 20, 30, 40});
    view.setResizing(GetParam().rule);
    superview.addSubview(view);
    superview.setFrame({5, 5, 160, 190});
    EXPECT_EQ(view.frame(), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, HostViewResizingTest,
    testing::Values(ResizingRow{{}, {10, 20, 30, 40}},
                    ResizingRow{{.width = true, .height = true}, {10, 20, 90, 130}},
                    ResizingRow{{.leftMargin = true, .bottomMargin = true}, {70, 110, 30, 40}},
                    ResizingRow{{.rightMargin = true, .topMargin = true}, {10, 20, 30, 40}},
                    ResizingRow{{.leftMargin = true, .rightMargin = true}, {40, 20, 30, 40}},
                    ResizingRow{{.leftMargin = true, .width = true, .rightMargin = true},
                                {30, 20, 50, 40}}));

TEST(HostViewTest, AViewSqueezedToZeroGetsItsSizeBack)
{
    const HostResizing both{.width = true, .height = true};
    HostView superview({0, 0, 100, 100});
    HostView view({10, 20, 30, 40});
    HostView other({});
    view.setResizing(both);
    other.setResizing(both);
    superview.addSubview(view);
    superview.setFrame({0, 0, 20, 5});
    EXPECT_EQ(view.frame(), (HostRect{10, 20, 0, 0}));

    view.removeFromSuperview();
    other.setFrameOf(view);
    superview.addSubview(other);
    superview.setFrame({0, 0, 100, 100});
    EXPECT_EQ(other.frame(), (HostRect{10, 20, 30, 40}));
}

TEST(HostViewTest, ADestroyedViewLeavesTheTree)
{
    HostView superview({0, 0, 10, 10});
    auto view = std::make_unique<HostView>(HostRect{});
    HostView subview({});
    superview.addSubview(*view);
    view->addSubview(subview);
    view.reset();
    EXPECT_TRUE(superview.subviews().empty());
    EXPECT_EQ(subview.superview(), nullptr);
}

TEST(HostViewTest, TheGroundIsThatOfTheNearestViewThatPaintsOne)
{
    HostView page({});
    HostView painted({});
    HostView label({});
    page.addSubview(painted);
    painted.addSubview(label);
    EXPECT_EQ(label.groundColor(), std::nullopt);
    painted.setGroundColor(HostColor::whiteColor());
    EXPECT_EQ(label.groundColor(), HostColor::whiteColor());
    EXPECT_EQ(page.groundColor(), std::nullopt);
    label.setGroundColor(HostColor::blackColor());
    EXPECT_EQ(label.groundColor(), HostColor::blackColor());
}

TEST(HostViewTest, AViewHasOneSuperview)
{
    HostView first({});
    HostView second({});
    HostView view({});
    first.addSubview(view);
    second.addSubview(view);
    EXPECT_TRUE(first.subviews().empty());
    EXPECT_EQ(view.superview(), &second);
    second.addSubview(second);
    EXPECT_EQ(second.superview(), nullptr);
}

TEST(HostViewTest, BoundsHaveTheFramesSizeAndAnOriginOfTheirOwn)
{
    HostView view({10, 20, 30, 40});
    EXPECT_EQ(view.bounds(), (HostRect{0, 0, 30, 40}));
    view.setBounds({10, 20, 999, 999});
    EXPECT_EQ(view.bounds(), (HostRect{10, 20, 30, 40}));
    view.setFrame({0, 0, 50, -3});
    EXPECT_EQ(view.bounds(), (HostRect{10, 20, 50, 0}));
}

/// Writes down which hooks are called.
class HookedView final : public HostView {
public:
    using HostView::HostView;

    [[nodiscard]] std::string takeCalls() { return std::exchange(_calls, {}); }

protected:
    void frameDidChange() override { _calls += "frame "; }
    void boundsDidChange() override { _calls += "bounds "; }
    void hierarchyDidChange() override { _calls += "hierarchy "; }
    void parkedDidChange() override { _calls += "parked "; }
    void groundColorDidChange() override { _calls += "ground "; }
    void toolTipDidChange() override { _calls += "tip "; }
    void displayDidBecomeNeeded(HostRect rect) override
    {
        _calls += "display " + std::to_string(std::lround(rect.width)) + " ";
    }

private:
    std::string _calls;
};

TEST(HostViewTest, DesktopsLearnOfEachChangeOnce)
{
    HostView superview({});
    HookedView view({0, 0, 10, 10});
    struct Row {
        std::function<void()> change;
        const char* calls;
    };
    const Row rows[] = {
        {[&] {
             view.setFrame({0, 0, 20, 10});
         },
         "frame "},
        {[&] {
             view.setFrameOrigin({1, 1});
         },
         "frame "},
        {[&] {
             view.setBounds({1, 0, 0, 0});
         },
         "bounds "},
        {[&] { superview.addSubview(view); }, "hierarchy display 20 "},
        {[&] { superview.addSubview(view); }, ""},
        {[&] { view.setParked(true); }, "parked "},
        {[&] { view.setParked(false); }, "parked "},
        {[&] { view.setGroundColor(HostColor::whiteColor()); }, "ground "},
        {[&] { view.setGroundColor(std::nullopt); }, "ground "},
        {[&] { view.setToolTip(u"Tip"); }, "tip "},
        {[&] { view.setToolTip(std::nullopt); }, "tip "},
        {[&] { view.setNeedsDisplay(true); }, "display 20 "},
        {[&] { view.setNeedsDisplay(false); }, ""},
        {[&] {
             view.setNeedsDisplayInRect({0, 0, 5, 5});
         },
         "display 5 "},
        {[&] { view.removeFromSuperview(); }, "hierarchy "},
        {[&] { view.removeFromSuperview(); }, ""},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        rows[i].change();
        EXPECT_EQ(view.takeCalls(), rows[i].calls) << "row " << i;
    }
    // What is as it was already is not a change.
    view.setParked(false);
    view.setGroundColor(std::nullopt);
    view.setToolTip(std::nullopt);
    view.setFrame(view.frame());
    view.setBounds(view.bounds());
    EXPECT_EQ(view.takeCalls(), "");
}

TEST(HostViewTest, MarksViewsForRedrawing)
{
    HostView view({0, 0, 10, 10});
    view.setNeedsDisplay(false);
    EXPECT_FALSE(view.needsDisplay());
    view.setNeedsDisplayInRect({1, 1, 2, 2});
    EXPECT_TRUE(view.needsDisplay());
}

}  // namespace
}  // namespace vantorel
