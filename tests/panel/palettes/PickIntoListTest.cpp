#include "PalettesPageFixture.h"
#include "PanelCommandsFixture.h"

namespace vantorel {
namespace {

class PickIntoListTest : public PalettesPageTest {
protected:
    std::unique_ptr<ScreenPicker> screenPicker() override
    {
        return std::make_unique<ScriptedScreenPicker>(_pick);
    }

    ScriptedScreenPicker::Script _pick;
};

TEST_F(PickIntoListTest, WhatIsPickedUntilTheUserLeavesIsOneStepOfTheList)
{
    _pick.onTheWay = {rgb(0, 255, 0), rgb(0, 0, 255), rgb(0, 255, 0)};
    _pick.result.outcome = ScreenPickResult::Outcome::cancelled;
    click(0, Qt::ControlModifier);
    const QColor before = chosenColor();
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(_pick.options.goesOn);
    EXPECT_TRUE(_pick.options.showsHints)
        << "a click does not end it, so it must be said what does";
    EXPECT_EQ(own("Reds"),
              "red=ff0000 #00FF00=00ff00 #0000FF=0000ff #00FF00 2=00ff00 dark=c00000 "
              "darker=800000 darkest=400000");
    EXPECT_EQ(view()->selectedPlaces(), (std::vector<std::size_t>{1, 2, 3}));
    EXPECT_EQ(chosenColor(), before) << "the panel's colour stays";
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 darker=800000 darkest=400000");
}

TEST_F(PickIntoListTest, WhoLeavesAtOnceChangesNothing)
{
    _pick.result.outcome = ScreenPickResult::Outcome::cancelled;
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 darker=800000 darkest=400000");
    EXPECT_FALSE(command("Undo")->isEnabled());
}

TEST_F(PickIntoListTest, TheDesktopsOwnPickerGivesOneColour)
{
    _pick.result.outcome = ScreenPickResult::Outcome::picked;
    _pick.result.color = rgb(1, 1, 1);
    _pick.result.endsAfterOne = true;
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 darker=800000 darkest=400000 #010101=010101");
    const auto* label = _window->findChild<MessageLabel*>();
    EXPECT_TRUE(label->isVisible());
    EXPECT_TRUE(label->text().contains("one at a time")) << label->text().toStdString();
}

TEST_F(PickIntoListTest, WhatMakesPickingImpossibleIsReported)
{
    _pick.result.outcome = ScreenPickResult::Outcome::notPossible;
    _pick.result.reason = {phrase("there is no screen")};
    press(Qt::Key_L, Qt::ControlModifier);
    const QList<MessageLabel*> labels = _window->findChildren<MessageLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const MessageLabel* label) {
        return label->text().contains("no screen");
    }));
    EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 darker=800000 darkest=400000");
}

}  // namespace
}  // namespace vantorel
