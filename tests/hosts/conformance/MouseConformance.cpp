#include "ConformanceTest.h"

namespace vantorel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

constexpr std::uint32_t dragOrUp =
    maskOfEventType(HostEventType::leftMouseDragged) | maskOfEventType(HostEventType::leftMouseUp);

class MouseConformance : public ConformanceTest {
protected:
    MouseConformance() : view(factory.makeCustomView(described({10, 10, 100, 100}), content))
    {
        root.addSubview(*view);
        host->handleEvents();
        content.names.clear();
        content.events.clear();
    }

    [[nodiscard]] HostEvent waitFor(std::uint32_t mask)
    {
        return host->panel().nextEventMatchingMask(mask, *view);
    }

    RecordedContent content;
    std::unique_ptr<HostCustomView> view;
};

TEST_F(MouseConformance, ATurnOfTheButtonReachesTheContent)
{
    host->turnMouse(*view,
                    {pressAt({20, 30}), dragTo({25, 35}), dragTo({40, 90}), releaseAt({41, 91})});
    EXPECT_THAT(content.names, ElementsAre("down", "dragged", "dragged", "up"));
    ASSERT_EQ(content.events.size(), 4U);
    EXPECT_EQ(content.events[0].location, (HostPoint{20, 30}));
    EXPECT_EQ(content.events[2].location, (HostPoint{40, 90}));
    EXPECT_EQ(content.events[3].location, (HostPoint{41, 91}));
}

TEST_F(MouseConformance, LocationsAreInTheViewsOwnCoordinates)
{
    view->setBounds({1000, -50, 0, 0});
    host->turnMouse(*view, {pressAt({1020, -20}), dragTo({990, 70}), releaseAt({1110, -60})});
    ASSERT_EQ(content.events.size(), 3U);
    EXPECT_EQ(content.events[0].location, (HostPoint{1020, -20}));
    EXPECT_EQ(content.events[1].location, (HostPoint{990, 70})) << "outside";
    EXPECT_EQ(content.events[2].location, (HostPoint{1110, -60})) << "outside";
}

TEST_F(MouseConformance, ModifiersComeWithTheEvents)
{
    // The key that desktops call Meta or Super belongs to them.
    for (const std::uint64_t flags : {shiftModifierFlag, controlModifierFlag, alternateModifierFlag,
                                      shiftModifierFlag | alternateModifierFlag}) {
        content.events.clear();
        host->turnMouse(
            *view, {pressAt({20, 30}, flags), dragTo({25, 35}, flags), releaseAt({25, 35}, flags)});
        ASSERT_EQ(content.events.size(), 3U);
        for (const HostEvent& event : content.events)
            EXPECT_EQ(event.modifierFlags, flags);
    }
}

TEST_F(MouseConformance, AContentCanWaitForTheEventsOfItsTurn)
{
    std::vector<HostEvent> got;
    content.whenPressed = [&] {
        do {
            got.push_back(waitFor(dragOrUp));
        } while (got.back().type != HostEventType::leftMouseUp && got.size() < 10);
    };
    host->turnMouse(*view, {pressAt({20, 20}), dragTo({30, 40}),
                            dragTo({31, 41}, shiftModifierFlag), releaseAt({32, 42})});
    ASSERT_EQ(got.size(), 3U);
    EXPECT_EQ(got[0].type, HostEventType::leftMouseDragged);
    EXPECT_EQ(got[0].location, (HostPoint{30, 40}));
    EXPECT_EQ(got[1].location, (HostPoint{31, 41}));
    EXPECT_EQ(got[1].modifierFlags, shiftModifierFlag);
    EXPECT_EQ(got[2].location, (HostPoint{32, 42}));
    EXPECT_THAT(content.names, ElementsAre("down")) << "what is waited for comes no other way";
}

TEST_F(MouseConformance, AContentGetsOnlyTheEventsThatItWaitsFor)
{
    HostEvent got;
    content.whenPressed = [&] { got = waitFor(maskOfEventType(HostEventType::leftMouseUp)); };
    host->turnMouse(*view, {pressAt({20, 20}), dragTo({30, 40}), releaseAt({32, 42})});
    EXPECT_EQ(got.type, HostEventType::leftMouseUp);
    EXPECT_EQ(got.location, (HostPoint{32, 42}));
    EXPECT_THAT(content.names, Not(Contains("up")));
}

TEST_F(MouseConformance, TheProgramRunsOnWhileAContentWaits)
{
    bool ran = false;
    HostEvent got;
    content.whenPressed = [&] { got = waitFor(dragOrUp); };
    host->turnMouse(*view, {pressAt({20, 20}), [&] { ran = true; }, releaseAt({21, 21})});
    EXPECT_TRUE(ran);
    EXPECT_EQ(got.location, (HostPoint{21, 21}));
}

TEST_F(MouseConformance, WithoutAPressThereIsNothingToWaitFor)
{
    EXPECT_EQ(waitFor(dragOrUp).type, HostEventType::leftMouseUp);
}

/// What can end a turn of the button in the middle.
struct End {
    const char* name;
    void (*happen)(HostUnderTest& host, std::unique_ptr<HostCustomView>& view);
};

constexpr std::array<End, 4> ends{{
    {"Parked",
     [](HostUnderTest&, std::unique_ptr<HostCustomView>& view) { view->setParked(true); }},
    {"TakenOut",
     [](HostUnderTest&, std::unique_ptr<HostCustomView>& view) { view->removeFromSuperview(); }},
    {"Destroyed", [](HostUnderTest&, std::unique_ptr<HostCustomView>& view) { view.reset(); }},
    {"WindowDestroyed",
     [](HostUnderTest& host, std::unique_ptr<HostCustomView>&) { host.destroyWindow(); }},
}};

class EndedTurnConformance : public MouseConformance, public testing::WithParamInterface<End> {};

TEST_P(EndedTurnConformance, AContentThatWaitsGetsARelease)
{
    HostEvent got;
    content.whenPressed = [&] { got = waitFor(dragOrUp); };
    host->turnMouse(*view, {pressAt({20, 30}), [&] { GetParam().happen(*host, view); },
                            dragTo({30, 40}), releaseAt({32, 42})});
    EXPECT_EQ(got.type, HostEventType::leftMouseUp);
    EXPECT_EQ(got.location, (HostPoint{20, 30})) << "where the pointer was";
    EXPECT_THAT(content.names, ElementsAre("down"));
}

TEST_P(EndedTurnConformance, AContentThatDoesNotWaitIsNotCalledByWhatComesAfter)
{
    host->turnMouse(*view, {pressAt({20, 30}), [&] { GetParam().happen(*host, view); },
                            dragTo({30, 40}), releaseAt({32, 42})});
    EXPECT_THAT(content.names, Not(Contains("dragged")));
}

TEST_P(EndedTurnConformance, ItMayBeThePressItself)
{
    content.whenPressed = [&] { GetParam().happen(*host, view); };
    host->turnMouse(*view, {pressAt({20, 30}), dragTo({30, 40}), releaseAt({32, 42})});
    EXPECT_EQ(content.names.front(), "down");
    EXPECT_THAT(content.names, Not(Contains("dragged")));
}

INSTANTIATE_TEST_SUITE_P(Ends, EndedTurnConformance, testing::ValuesIn(ends),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(MouseConformance, TheTrackingRectangleReportsCrossings)
{
    host->movePointer(*view, HostPoint{5, 5});
    const auto tag = view->addTrackingRect({0, 0, 50, 50}, false);
    EXPECT_NE(tag, 0);
    host->movePointer(*view, HostPoint{80, 80});
    host->movePointer(*view, HostPoint{20, 20});
    host->movePointer(*view, HostPoint{21, 20});
    host->movePointer(*view, HostPoint{80, 20});
    EXPECT_THAT(content.names, ElementsAre("entered", "exited"));
    view->removeTrackingRect(tag);
    host->movePointer(*view, HostPoint{20, 20});
    EXPECT_EQ(content.names.size(), 2U);
}

TEST_F(MouseConformance, APointerThatIsInsideDoesNotEnter)
{
    static_cast<void>(view->addTrackingRect({0, 0, 50, 50}, true));
    host->movePointer(*view, HostPoint{20, 20});
    EXPECT_TRUE(content.names.empty());
    host->movePointer(*view, HostPoint{60, 20});
    EXPECT_THAT(content.names, ElementsAre("exited"));
}

TEST_F(MouseConformance, WhoLeavesTheViewLeavesTheRectangle)
{
    static_cast<void>(view->addTrackingRect({0, 0, 50, 50}, false));
    host->movePointer(*view, HostPoint{20, 20});
    host->movePointer(*view, std::nullopt);
    EXPECT_THAT(content.names, ElementsAre("entered", "exited"));
    host->movePointer(*view, HostPoint{20, 20});
    EXPECT_THAT(content.names, ElementsAre("entered", "exited", "entered"));
}

TEST_F(MouseConformance, MovesAreReportedInsideWhileThePanelAcceptsThem)
{
    view->setBounds({100, 100, 0, 0});
    static_cast<void>(view->addTrackingRect({100, 100, 50, 50}, true));
    host->movePointer(*view, HostPoint{110, 120});
    EXPECT_TRUE(content.names.empty());
    host->panel().setAcceptsMouseMovedEvents(true);
    EXPECT_TRUE(host->panel().acceptsMouseMovedEvents());
    host->movePointer(*view, HostPoint{111, 121});
    ASSERT_THAT(content.names, ElementsAre("moved"));
    EXPECT_EQ(content.events.back().location, (HostPoint{111, 121}));
    host->movePointer(*view, HostPoint{180, 121});
    EXPECT_THAT(content.names, ElementsAre("moved", "exited"));
    host->panel().setAcceptsMouseMovedEvents(false);
    host->movePointer(*view, HostPoint{111, 121});
    host->movePointer(*view, HostPoint{112, 121});
    EXPECT_THAT(content.names, ElementsAre("moved", "exited", "entered"));
}

TEST_F(MouseConformance, ThePanelKnowsWhereThePointerIs)
{
    view->setBounds({100, 100, 0, 0});
    host->placePointer(*view, {130, 160});
    EXPECT_EQ(host->panel().mouseLocation(*view), (HostPoint{130, 160}));
}

TEST_F(MouseConformance, TheWheelTurnsWholeSteps)
{
    host->turnWheel(*view, {{20, 30}, 1, 0});
    host->turnWheel(*view, {{21, 31}, -2, shiftModifierFlag});
    ASSERT_GE(content.scrolls.size(), 2U);
    EXPECT_EQ(content.scrolls.front().steps, 1);
    EXPECT_EQ(content.scrolls.front().location, (HostPoint{20, 30}));
    int turnedBack = 0;
    for (std::size_t i = 1; i < content.scrolls.size(); ++i) {
        turnedBack += content.scrolls[i].steps;
        EXPECT_EQ(content.scrolls[i].location, (HostPoint{21, 31}));
        EXPECT_EQ(content.scrolls[i].modifierFlags, shiftModifierFlag);
    }
    EXPECT_EQ(turnedBack, -2) << "in one event or in two";
}

TEST_F(MouseConformance, ADragOutCarriesATextOrAColour)
{
    const HostImage image{{40, 16}, [](HostCanvas&) {}};
    const std::string text = "#ff8000 \xC3\xA4 \xF0\x9F\x8E\xA8";
    const HostColor color = HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1);
    for (const HostPasteboardItem& item : {HostPasteboardItem(text), HostPasteboardItem(color)}) {
        content.names.clear();
        content.whenDragged = [&](const HostEvent& event) {
            content.whenDragged = {};
            host->panel().dragImage(image, item, event, *view);
            content.names.emplace_back("dropped");
        };
        host->turnMouse(*view, {pressAt({20, 30}), dragTo({40, 50}), releaseAt({200, 150})});
        EXPECT_THAT(content.names, ElementsAre("down", "dragged", "dropped"))
            << "the drag has taken the release";
        EXPECT_EQ(host->carried(), item);
    }
}

}  // namespace
}  // namespace vantorel
