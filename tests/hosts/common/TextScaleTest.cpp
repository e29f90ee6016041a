#include "hosts/common/TextScale.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(TextScaleTest, GrowsInQuarterStepsFromTheDefaultFont)
{
    struct Row {
        double pixels;
        double scale;
    };
    for (const auto& [pixels, scale] :
         {Row{0, 1}, Row{12, 1}, Row{40 / 3.0, 1}, Row{15, 1}, Row{16.5, 1.25}, Row{20, 1.5},
          Row{19.8, 1.5}, Row{80 / 3.0, 2}, Row{500, 3}}) {
        EXPECT_EQ(textScaleForFontHeight(pixels), scale) << pixels;
    }
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
