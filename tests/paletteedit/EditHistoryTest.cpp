#include "paletteedit/EditHistory.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

EditStep stepWithEntries(PaletteId list, std::size_t count)
{
    const auto entries =
        std::make_shared<const PaletteEntries>(count, PaletteEntry(u"a", HostColor::blackColor()));
    return {list, std::nullopt, PaletteState{u"list", entries, nullptr}};
}

TEST(EditHistoryTest, StepsAreUndoneInReverse)
{
    EditHistory history;
    for (PaletteId list : {1U, 2U, 3U})
        history.record(stepWithEntries(list, 1));
    EXPECT_EQ(history.lastDone().list, 3U);
    history.moveToUndone();
    history.moveToUndone();
    EXPECT_EQ(history.lastDone().list, 1U);
    EXPECT_EQ(history.lastUndone().list, 2U);
    history.moveToDone();
    EXPECT_EQ(history.lastDone().list, 2U);
    EXPECT_EQ(history.lastUndone().list, 3U);
    history.record(stepWithEntries(4, 1));
    EXPECT_FALSE(history.canRedo()) << "a new step clears the steps to redo";
}

TEST(EditHistoryTest, OnlyTheOldestStepsAreDropped)
{
    EditHistory history;
    for (PaletteId list = 1; list <= EditHistory::mostSteps + 10; ++list)
        history.record(stepWithEntries(list, 1));
    std::size_t count = 0;
    PaletteId last = 0;
    for (; history.canUndo(); ++count) {
        last = history.lastDone().list;
        history.moveToUndone();
    }
    EXPECT_EQ(count, EditHistory::mostSteps);
    EXPECT_EQ(last, 11U);
}

TEST(EditHistoryTest, StepsOfHugeListsDoNotFillTheMemory)
{
    EditHistory history;
    for (PaletteId list = 1; list <= 20; ++list)
        history.record(stepWithEntries(list, EditHistory::mostEntries / 10));
    std::size_t count = 0;
    for (; history.canUndo(); ++count)
        history.moveToUndone();
    EXPECT_EQ(count, 10U);
}

TEST(EditHistoryTest, TheLastStepIsKeptHoweverHugeItIs)
{
    EditHistory history;
    history.record(stepWithEntries(1, EditHistory::mostEntries + 1));
    ASSERT_TRUE(history.canUndo());
    history.record(stepWithEntries(2, 1));
    ASSERT_TRUE(history.canUndo());
    EXPECT_EQ(history.lastDone().list, 2U);
    history.moveToUndone();
    EXPECT_FALSE(history.canUndo());
}

TEST(EditHistoryTest, StepsThatCannotBeRedoneAreForgotten)
{
    EditHistory history;
    const EditStep tenth = stepWithEntries(1, EditHistory::mostEntries / 10);
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 10; ++i)
            history.record(tenth);
        int count = 0;
        for (; history.canUndo(); ++count)
            history.moveToUndone();
        EXPECT_EQ(count, 10) << "round " << round;
    }
    // A step that removes a list counts with the list as it was.
    const EditStep removal{1, tenth.after, std::nullopt};
    for (int i = 0; i < 11; ++i)
        history.record(removal);
    int count = 0;
    for (; history.canUndo(); ++count)
        history.moveToUndone();
    EXPECT_EQ(count, 10);
}

TEST(EditHistoryTest, ThirtyThousandEntriesCanBeChangedTwoHundredTimes)
{
    EditHistory history;
    const auto entries = stepWithEntries(1, 30000).after->entries;
    for (int i = 0; i < 200; ++i)
        history.record({1, std::nullopt, PaletteState{u"list", entries, nullptr}});
    int count = 0;
    for (; history.canUndo(); ++count)
        history.moveToUndone();
    EXPECT_EQ(count, 200);
}

}  // namespace
}  // namespace vantorel
