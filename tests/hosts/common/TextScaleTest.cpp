#include "hosts/common/TextScale.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(TextScaleTest, GrowsInQuarterStepsFromTheDefaultFont)
{
    EXPECT_EQ(textScaleForFontHeight(0), 1);
    EXPECT_EQ(textScaleForFontHeight(13), 1);
    EXPECT_EQ(textScaleForFontHeight(15), 1);
    EXPECT_EQ(textScaleForFontHeight(17), 1.25);
    EXPECT_EQ(textScaleForFontHeight(20), 1.5);
    EXPECT_EQ(textScaleForFontHeight(27), 2);
    EXPECT_EQ(textScaleForFontHeight(400), 3);
}

TEST(FittedTextSizeTest, OnlyATextThatNearlyFitsBecomesSmaller)
{
    EXPECT_EQ(fittedTextSize(10, 50, 60), 10);
    EXPECT_EQ(fittedTextSize(10, 100, 80), 8);
    EXPECT_EQ(fittedTextSize(10, 100, 69), 10);
    EXPECT_EQ(fittedTextSize(10, 0, 0), 10);
}

}  // namespace
}  // namespace vantorel
