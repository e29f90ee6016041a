#include "hosts/common/PointerTracking.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

class PointerTrackingTest : public testing::Test, HostViewContent {
protected:
    void drawRect(HostCanvas&) override {}
    void mouseEntered(const HostEvent&) override { _calls += "entered "; }
    void mouseExited(const HostEvent&) override { _calls += "exited "; }
    void mouseMoved(const HostEvent&) override { _calls += "moved "; }

    void moveTo(double x) { _tracking.move({HostEventType::mouseMoved, {x, 5}, 0}); }

    PointerTracking _tracking{*this};
    std::string _calls;
};

TEST_F(PointerTrackingTest, MovesCrossTheRectangleOnce)
{
    moveTo(5);
    const auto tag = _tracking.addTrackingRect({0, 0, 10, 10}, false);
    EXPECT_NE(tag, 0);
    moveTo(5);
    moveTo(6);
    _tracking.setAcceptsMouseMoved(true);
    moveTo(7);
    moveTo(10);
    moveTo(11);
    EXPECT_EQ(_calls, "entered moved exited ");
}

TEST_F(PointerTrackingTest, APointerThatIsInsideAlreadyDoesNotEnter)
{
    _tracking.addTrackingRect({0, 0, 10, 10}, true);
    moveTo(5);
    EXPECT_EQ(_calls, "");
    _tracking.leave({});
    _tracking.leave({});
    EXPECT_EQ(_calls, "exited ");
}

TEST_F(PointerTrackingTest, OnlyTheLastRectangleCounts)
{
    const auto first = _tracking.addTrackingRect({0, 0, 10, 10}, false);
    const auto second = _tracking.addTrackingRect({20, 0, 10, 10}, false);
    _tracking.removeTrackingRect(first);
    moveTo(5);
    moveTo(25);
    EXPECT_EQ(_calls, "entered ");
    _tracking.removeTrackingRect(second);
    moveTo(50);
    EXPECT_EQ(_calls, "entered ");
}

}  // namespace
}  // namespace vantorel
