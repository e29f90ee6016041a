#include "view/DragImages.h"

#include "testing/headless/HeadlessDesktop.h"
#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr double pointSize = 9;

/// The width of the picture of a text with that many characters, without its margin.
double widthOf(std::size_t characters, double charWidth)
{
    HeadlessDesktop desktop{{std::make_unique<MemoryFiles>(), charWidth / pointSize, {}}};
    return stringDragImage(desktop, std::u16string(characters, u'x')).size.width - 4;
}

TEST(DragImagesTest, OnlyATextThatIsLongAndWideIsCut)
{
    constexpr double cutLength = 20 + 3;
    EXPECT_DOUBLE_EQ(widthOf(28, 5), 28 * 5) << "140 points wide";
    EXPECT_DOUBLE_EQ(widthOf(29, 5), cutLength * 5);
    EXPECT_DOUBLE_EQ(widthOf(20, 10), 20 * 10) << "20 characters long";
    EXPECT_DOUBLE_EQ(widthOf(21, 10), cutLength * 10);
}

}  // namespace
}  // namespace vantorel
