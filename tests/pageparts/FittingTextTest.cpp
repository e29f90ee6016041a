#include "pageparts/FittingText.h"

#include "testing/headless/HeadlessDesktop.h"

#include <gtest/gtest.h>

#include <utility>

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

TEST(FittingTextTest, ARoundedFontSizeFitsToo)
{
    HeadlessDesktop::Options options;
    options.hasWholeFontSizes = true;
    HeadlessDesktop desktop(std::move(options));
    const HostText text{.string = u"AAA", .pointSize = 10};
    const double room = desktop.sizeOfText(text).width * 0.85;
    const HostText smaller = fittingText(desktop, text, room);
    EXPECT_LE(desktop.sizeOfText(smaller).width, room) << "not 8.5, which is painted as 9";
    EXPECT_GT(smaller.pointSize, 7) << "and no smaller than that takes";
}

}  // namespace
}  // namespace vantorel
