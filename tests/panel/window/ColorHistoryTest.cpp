#include "panel/window/ColorHistory.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

HostColor grey(double value)
{
    return HostColor::colorWithCalibratedRed(value, value, value, 1);
}

/// A step in which the background stays white.
ColorPair greyStep(double value)
{
    return {grey(value)};
}

class ColorHistoryTest : public testing::Test {
protected:
    ColorHistory _history{greyStep(0)};
};

TEST_F(ColorHistoryTest, ChangesFarApartAreSeparateSteps)
{
    EXPECT_FALSE(_history.canUndo());
    _history.record(greyStep(0.1), 10);
    _history.record(greyStep(0.2), 20);
    EXPECT_EQ(_history.undo(), greyStep(0.1));
    EXPECT_EQ(_history.undo(), greyStep(0));
    EXPECT_EQ(_history.undo(), std::nullopt);
    EXPECT_EQ(_history.redo(), greyStep(0.1));
    EXPECT_EQ(_history.redo(), greyStep(0.2));
    EXPECT_EQ(_history.redo(), std::nullopt);
}

TEST_F(ColorHistoryTest, ADragIsOneStep)
{
    for (int i = 1; i <= 100; ++i)
        _history.record(greyStep(i / 100.0), 10 + i * 0.05);
    EXPECT_EQ(_history.current(), greyStep(1));
    EXPECT_EQ(_history.undo(), greyStep(0));
    EXPECT_EQ(_history.recent(), std::vector<HostColor>{grey(0)}) << "none of what it passed over";
}

TEST_F(ColorHistoryTest, AStepLastsAsLongAsItsDrag)
{
    _history.record(greyStep(0.1), 0);
    _history.beginStep();
    _history.record(greyStep(0.2), 0.1);
    _history.record(greyStep(0.3), 10);
    _history.endStep();
    _history.record(greyStep(0.4), 10.1);
    EXPECT_EQ(_history.undo(), greyStep(0.3));
    EXPECT_EQ(_history.undo(), greyStep(0.1));
}

TEST_F(ColorHistoryTest, AFirstColourThatNobodyHasChosenIsNotRecent)
{
    ColorHistory history(greyStep(1), ColorHistory::First::given);
    history.record(greyStep(0.1), 10);
    EXPECT_TRUE(history.recent().empty());
    history.record(greyStep(0.2), 20);
    EXPECT_EQ(history.recent(), std::vector<HostColor>{grey(0.1)});
    history.undo();
    EXPECT_EQ(history.undo(), greyStep(1)) << "it can be restored all the same";
}

TEST_F(ColorHistoryTest, AChangeAfterAnUndoClearsTheRedoSteps)
{
    _history.record(greyStep(0.1), 10);
    _history.record(greyStep(0.2), 20);
    _history.undo();
    _history.record(greyStep(0.3), 20.1);
    EXPECT_FALSE(_history.canRedo());
    EXPECT_EQ(_history.undo(), greyStep(0.1)) << "the change is a step, however soon it came";
}

TEST_F(ColorHistoryTest, TheSameColourIsNotAChange)
{
    _history.record(greyStep(0), 10);
    EXPECT_FALSE(_history.canUndo());
    EXPECT_TRUE(_history.recent().empty());
}

TEST_F(ColorHistoryTest, AForgottenChangeCannotBeUndone)
{
    _history.record(greyStep(0.5), 10);
    _history.record(greyStep(0.9), 20);
    _history.forgetLast();
    _history.record(greyStep(0.5), 21);
    EXPECT_EQ(_history.current(), greyStep(0.5));
    EXPECT_EQ(_history.undo(), greyStep(0));
    EXPECT_EQ(_history.redo(), greyStep(0.5));
    EXPECT_FALSE(_history.canRedo());
    EXPECT_EQ(_history.recent(), std::vector<HostColor>{grey(0)});
}

TEST_F(ColorHistoryTest, ChangesOfBothColoursAreOneSequenceOfSteps)
{
    const ColorPair first{grey(0.1), grey(0.8)};
    const ColorPair second{grey(0.1), grey(0.9)};
    const ColorPair swapped{grey(0.9), grey(0.1)};
    _history.record(first, 10);
    _history.record(second, 20);
    _history.record(swapped, 30);
    EXPECT_EQ(_history.recent(), (std::vector<HostColor>{grey(0.1), grey(0.9), grey(0.8), grey(0)}))
        << "the backgrounds that were replaced, but not the first one";
    EXPECT_EQ(_history.undo(), second) << "a swap is one step";
    EXPECT_EQ(_history.undo(), first);
    EXPECT_EQ(_history.undo(), greyStep(0));
}

TEST_F(ColorHistoryTest, ChangesOfDifferentColoursAreStepsHoweverSoonTheyCome)
{
    _history.record({grey(0.1), grey(1)}, 10);
    _history.record({grey(0.1), grey(0.5)}, 10.1);
    _history.record({grey(0.1), grey(0.6)}, 10.2);
    EXPECT_EQ(_history.undo(), (ColorPair{grey(0.1), grey(1)}));
    EXPECT_EQ(_history.undo(), greyStep(0));
}

TEST_F(ColorHistoryTest, RecentColoursAreDistinctAndLimited)
{
    for (int i = 0; i < 100; ++i)
        _history.remember(grey(i % 40 / 100.0));
    EXPECT_EQ(_history.recent().size(), ColorHistory::mostRecent);
    EXPECT_EQ(_history.recent().front(), grey(0.19));
    _history.setRecent({grey(0.2), grey(0.2), grey(0.3)});
    EXPECT_EQ(_history.recent(), (std::vector<HostColor>{grey(0.2), grey(0.3)}));
}

TEST_F(ColorHistoryTest, TheOldestOfManyStepsAreDropped)
{
    for (int i = 1; i <= 1000; ++i)
        _history.record(greyStep(i / 1000.0), i * 10);
    std::size_t steps = 0;
    while (_history.undo())
        ++steps;
    EXPECT_EQ(steps, ColorHistory::mostSteps - 1);
}

}  // namespace
}  // namespace vantorel
