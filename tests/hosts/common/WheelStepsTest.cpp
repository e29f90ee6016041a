#include "hosts/common/WheelSteps.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(WheelStepsTest, PartsOfAStepAddUp)
{
    WheelSteps wheel;
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(wheel.stepsOf(0.1), 0);
    EXPECT_EQ(wheel.stepsOf(0.1), 1);
    EXPECT_EQ(wheel.stepsOf(-2.5), -2);
    EXPECT_EQ(wheel.stepsOf(-0.5), -1);
}

TEST(WheelStepsTest, ATurnTheOtherWayStartsAnew)
{
    WheelSteps wheel;
    EXPECT_EQ(wheel.stepsOf(0.75), 0);
    EXPECT_EQ(wheel.stepsOf(-0.5), 0);
    EXPECT_EQ(wheel.stepsOf(-0.5), -1);
}

}  // namespace
}  // namespace vantorel
