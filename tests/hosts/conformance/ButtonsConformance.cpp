#include "ConformanceTest.h"

namespace vantorel {
namespace {

using ButtonKind = HostControlDescription::ButtonKind;

class ButtonsConformance : public ConformanceTest {
protected:
    std::unique_ptr<HostButton> shownButton(ButtonKind kind)
    {
        auto description = described({10, 20, 80, 24});
        description.title = u"R_ed & blue";
        description.buttonKind = kind;
        auto button = factory.makeButton(description);
        button->setAction([this](HostControl& sender) {
            ++actions;
            stateAtAction = static_cast<HostButton&>(sender).state();
        });
        root.addSubview(*button);
        host->handleEvents();
        return button;
    }

    int actions = 0;
    int stateAtAction = -1;
};

TEST_F(ButtonsConformance, AClickSendsTheActionOfAPushButton)
{
    const auto button = shownButton(ButtonKind::push);
    host->click(*button);
    host->click(*button);
    EXPECT_EQ(actions, 2);
    EXPECT_EQ(button->state(), 0);
}

TEST_F(ButtonsConformance, AClickChangesTheStateBeforeTheAction)
{
    for (const ButtonKind kind : {ButtonKind::checkBox, ButtonKind::toggle}) {
        const auto button = shownButton(kind);
        actions = 0;
        for (const int state : {1, 0}) {
            host->click(*button);
            EXPECT_EQ(stateAtAction, state);
            EXPECT_EQ(button->state(), state);
            EXPECT_EQ(host->isOn(*button), state == 1);
        }
        EXPECT_EQ(actions, 2);
    }
}

TEST_F(ButtonsConformance, AStateSetByCodeIsShownAndNotReported)
{
    for (const ButtonKind kind : {ButtonKind::checkBox, ButtonKind::toggle}) {
        const auto button = shownButton(kind);
        for (const int state : {1, 0, 1}) {
            button->setState(state);
            host->handleEvents();
            EXPECT_EQ(host->isOn(*button), state == 1);
        }
    }
    EXPECT_EQ(actions, 0);
}

TEST_F(ButtonsConformance, AToggleShowsTheStateThatItsActionSets)
{
    const auto button = shownButton(ButtonKind::toggle);
    button->setAction([&](HostControl&) { button->setState(1); });
    host->click(*button);
    host->click(*button);
    EXPECT_EQ(button->state(), 1);
    EXPECT_TRUE(host->isOn(*button)) << "one of a group of toggles stays on";
}

TEST_F(ButtonsConformance, TheActionMayTakeTheButtonOutOfSight)
{
    const auto button = shownButton(ButtonKind::push);
    button->setAction([&](HostControl&) {
        ++actions;
        button->setParked(true);
    });
    host->click(*button);
    EXPECT_EQ(actions, 1);
    expectPlace(*button, std::nullopt);
}

TEST_F(ButtonsConformance, TheActionMayDestroyTheButton)
{
    for (const ButtonKind kind : {ButtonKind::push, ButtonKind::checkBox, ButtonKind::toggle}) {
        auto button = shownButton(kind);
        actions = 0;
        button->setAction([&](HostControl&) {
            ++actions;
            button.reset();
        });
        host->click(*button);
        EXPECT_EQ(actions, 1);
    }
}

}  // namespace
}  // namespace vantorel
