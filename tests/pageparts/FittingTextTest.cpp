#include "pageparts/FittingText.h"

#include "testing/headless/HeadlessDesktop.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(FittingTextTest, AWideTextBecomesSmaller)
{
    HeadlessDesktop desktop{{}};
    const HostText text{.string = u"AAA", .pointSize = 10};
    const double width = desktop.sizeOfText(text).width;
    EXPECT_EQ(fittingText(desktop, text, width).pointSize, 10);
    const HostText smaller = fittingText(desktop, text, width * 0.8);
    EXPECT_DOUBLE_EQ(smaller.pointSize, 8);
    EXPECT_LE(desktop.sizeOfText(smaller).width, width * 0.8 + 1e-9);
    EXPECT_EQ(fittingText(desktop, text, 1).pointSize, 7) << "still readable";
}

}  // namespace
}  // namespace vantorel
