#include "hosts/common/FocusMarks.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(FocusMarksTest, KeysShowTheMarksAndTheMouseHidesThem)
{
    FocusMarks marks;
    EXPECT_FALSE(marks.areShown());
    marks.focusCame(FocusOrigin::keys);
    EXPECT_TRUE(marks.areShown());
    marks.buttonWasPressed();
    EXPECT_FALSE(marks.areShown());
    marks.keyWasUsed();
    EXPECT_TRUE(marks.areShown());
    marks.focusCame(FocusOrigin::mouse);
    EXPECT_FALSE(marks.areShown());
}

TEST(FocusMarksTest, AWindowGivesTheMarksBack)
{
    FocusMarks marks;
    marks.focusCame(FocusOrigin::returned);
    EXPECT_FALSE(marks.areShown());
    marks.focusCame(FocusOrigin::keys);
    marks.focusCame(FocusOrigin::returned);
    EXPECT_TRUE(marks.areShown());
}

TEST(FocusMarksTest, ReturnIsForTheDialogWhileNoCellIsMarked)
{
    FocusMarks marks;
    EXPECT_FALSE(marks.offers({HostKey::pick, 0}));
    EXPECT_TRUE(marks.offers({HostKey::left, 0}));
    marks.keyWasUsed();
    EXPECT_TRUE(marks.offers({HostKey::pick, 0}));
}

}  // namespace
}  // namespace vantorel
