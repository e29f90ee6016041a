#include "testing/headless/HeadlessColorPanel.h"
#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

class HeadlessHostTest : public testing::Test {
protected:
    HeadlessDesktop _desktop{{std::make_unique<MemoryFiles>(), 0.6, {}}};
    HeadlessColorPanel _panel{_desktop, {200, 400, 260, 340}, HostColor::whiteColor()};
};

TEST_F(HeadlessHostTest, TimersFireInOrderAtTheirDueTime)
{
    std::vector<int> fired;
    const auto late = _desktop.scheduleTimer(2, [&] { fired.push_back(2); });
    const auto early = _desktop.scheduleTimer(1, [&] { fired.push_back(1); });
    const auto same = _desktop.scheduleTimer(2, [&] { fired.push_back(3); });
    auto cancelled = _desktop.scheduleTimer(1.5, [&] { fired.push_back(9); });
    cancelled.reset();
    EXPECT_EQ(_desktop.advance(1.5, [] {}), 1);
    EXPECT_EQ(_desktop.pendingTimers(), (std::vector<double>{0.5, 0.5}));
    EXPECT_EQ(_desktop.advance(1, [] {}), 2);
    EXPECT_EQ(fired, (std::vector<int>{1, 2, 3}));
}

TEST_F(HeadlessHostTest, ATimerMadeByATimerFiresInTheSameWait)
{
    std::unique_ptr<HostTimer> second;
    int looks = 0;
    const auto first =
        _desktop.scheduleTimer(1, [&] { second = _desktop.scheduleTimer(1, [] {}); });
    EXPECT_EQ(_desktop.advance(2, [&] { ++looks; }), 2);
    EXPECT_EQ(looks, 3);
}

TEST_F(HeadlessHostTest, TheWidthOfATextIsThatOfItsWidestLine)
{
    const auto size = [&](const char16_t* text) { return _desktop.sizeOfText({text, 10}); };
    EXPECT_EQ(size(u"abc"), (HostSize{18, 12.5}));
    EXPECT_EQ(size(u""), (HostSize{0, 12.5}));
    EXPECT_EQ(size(u"a\nabcd\n"), (HostSize{24, 25}));
}

TEST_F(HeadlessHostTest, AResizedPanelKeepsItsTopLeftCorner)
{
    HostView page({0, 0, 1, 1});
    _panel.showPage(&page);
    EXPECT_EQ(page.frame(), (HostRect{0, 0, 260, 308}));
    _panel.resize({300, 400});
    EXPECT_EQ(_panel.frame(), (HostRect{200, 340, 300, 400}));
    EXPECT_EQ(page.frame(), (HostRect{0, 0, 300, 368}));
}

class RecordingContent final : public HostViewContent {
public:
    void drawRect(HostCanvas&) override {}
    void mouseEntered(const HostEvent&) override { _calls += "entered "; }
    void mouseExited(const HostEvent&) override { _calls += "exited "; }
    void mouseMoved(const HostEvent&) override { _calls += "moved "; }
    void mouseDragged(const HostEvent&) override { _calls += "dragged "; }
    std::string _calls;
};

TEST_F(HeadlessHostTest, AnExhaustedQueueEndsWithARelease)
{
    HostView view({});
    _panel.setPointer(HostPoint{3, 4});
    const HostEvent event = _panel.nextEventMatchingMask(68, view);
    EXPECT_EQ(event.type, HostEventType::leftMouseUp);
    EXPECT_EQ(event.location, (HostPoint{3, 4}));
}

TEST_F(HeadlessHostTest, OnlyLivingControlsAreRegistered)
{
    HostControlDescription description;
    description.identifier = "field";
    auto field = _desktop.interfaceFactory().makeTextField(description);
    EXPECT_EQ(_desktop.interfaceFactory().control<HostTextField>("field"), field.get());
    EXPECT_EQ(_desktop.interfaceFactory().control<HostButton>("field"), nullptr);
    field.reset();
    EXPECT_EQ(_desktop.interfaceFactory().control<HostTextField>("field"), nullptr);
}

}  // namespace
}  // namespace vantorel
