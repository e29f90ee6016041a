#include "hosts/common/MouseTurn.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <vector>

namespace vantorel {
namespace {

constexpr std::uint32_t dragsAndReleases =
    maskOfEventType(HostEventType::leftMouseDragged) | maskOfEventType(HostEventType::leftMouseUp);

HostEvent eventAt(HostEventType type, double x)
{
    return {type, {x, 0}, 0};
}

/// An event loop that runs one step of a program at each wait.
class Program final : public MouseWait {
public:
    void run() override
    {
        _isRunning = true;
        while (_isRunning && !steps.empty()) {
            const auto step = steps.front();
            steps.erase(steps.begin());
            step();
        }
    }
    void end() override { _isRunning = false; }

    std::vector<std::function<void()>> steps;

private:
    bool _isRunning = false;
};

class MouseTurnTest : public testing::Test, HostViewContent {
protected:
    void drawRect(HostCanvas&) override {}
    void mouseDown(const HostEvent&) override
    {
        if (_whenPressed) _whenPressed();
    }
    void mouseDragged(const HostEvent& event) override { _places.push_back(event.location.x); }
    void mouseUp(const HostEvent& event) override { _ends.push_back(event.location.x); }

    void followTheMouse()
    {
        while (true) {
            const HostEvent event = _turn->nextEvent(dragsAndReleases, _program);
            _places.push_back(event.location.x);
            if (event.type == HostEventType::leftMouseUp) return;
        }
    }
    void press() { _turn->press(eventAt(HostEventType::leftMouseDown, 1)); }
    void drag(double x) { _turn->proceed(eventAt(HostEventType::leftMouseDragged, x)); }
    void release(double x) { _turn->proceed(eventAt(HostEventType::leftMouseUp, x)); }

    std::optional<MouseTurn> _turn{std::in_place, static_cast<HostViewContent&>(*this)};
    Program _program;
    std::function<void()> _whenPressed;
    std::vector<double> _places;
    std::vector<double> _ends;
};

TEST_F(MouseTurnTest, AContentWithoutALoopGetsTheDrags)
{
    drag(1);
    press();
    drag(2);
    drag(3);
    release(4);
    drag(5);
    EXPECT_EQ(_places, (std::vector<double>{2, 3}));
    EXPECT_EQ(_ends, std::vector<double>{4});
}

TEST_F(MouseTurnTest, EveryPressEndsExceptThoseThatALoopOrADragOutHasEnded)
{
    press();
    drag(2);
    _turn->breakOff();
    EXPECT_EQ(_ends, std::vector<double>{2});
    _whenPressed = [this] { release(3); };
    press();
    EXPECT_EQ(_ends, (std::vector<double>{2, 3})) << "released while the press was handled";
    _whenPressed = [this] { followTheMouse(); };
    _program.steps = {[this] { release(4); }};
    press();
    _whenPressed = {};
    press();
    _turn->forgetButton();
    release(5);
    EXPECT_EQ(_ends.size(), 2U);
}

TEST_F(MouseTurnTest, ALoopGetsTheLastPlaceOfEachWait)
{
    _whenPressed = [this] { followTheMouse(); };
    _program.steps = {[this] { drag(2); },
                      [this] {
                          drag(3);
                          drag(4);
                      },
                      [this] {
                          drag(5);
                          release(6);
                      }};
    press();
    EXPECT_EQ(_places, (std::vector<double>{2, 4, 5, 6}));
}

TEST_F(MouseTurnTest, AnotherPressDuringALoopIsIgnored)
{
    int presses = 0;
    _whenPressed = [&] {
        ++presses;
        followTheMouse();
    };
    _program.steps = {[this] { press(); }, [this] { release(2); }};
    press();
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(_places, std::vector<double>{2});
}

TEST_F(MouseTurnTest, ALoopEndsWhenTheViewIsHidden)
{
    _whenPressed = [this] { followTheMouse(); };
    _program.steps = {[this] { drag(2); }, [this] { _turn->breakOff(); }};
    press();
    EXPECT_EQ(_places, (std::vector<double>{2, 2}));
    _turn->breakOff();
    EXPECT_EQ(_places.size(), 2U);
}

TEST_F(MouseTurnTest, ALoopEndsWhenTheViewIsDestroyed)
{
    _whenPressed = [this] {
        EXPECT_EQ(_turn->nextEvent(dragsAndReleases, _program).type,
                  HostEventType::leftMouseDragged);
        const HostEvent last = _turn->nextEvent(dragsAndReleases, _program);
        EXPECT_EQ(last.type, HostEventType::leftMouseUp);
        EXPECT_EQ(last.location, (HostPoint{2, 0}));
    };
    _program.steps = {[this] { drag(2); }, [this] { _turn.reset(); },
                      [] { FAIL() << "the program went on"; }};
    press();
}

TEST_F(MouseTurnTest, ALoopEndsWithTheProgram)
{
    _whenPressed = [this] { followTheMouse(); };
    press();
    EXPECT_EQ(_places, std::vector<double>{1});
}

TEST_F(MouseTurnTest, ADragOutTakesTheRelease)
{
    _whenPressed = [this] {
        _turn->forgetButton();
        followTheMouse();
    };
    press();
    EXPECT_EQ(_places, std::vector<double>{1});
}

}  // namespace
}  // namespace vantorel
