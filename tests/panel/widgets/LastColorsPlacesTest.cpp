#include "panel/widgets/LastColorsPlaces.h"

#include "hosts/qt/TextScale.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(LastColorsPlacesTest, AsManyAsFitFillTheWidth)
{
    struct Row {
        int width;
        std::size_t pinned;
        std::size_t shown;
    };
    for (const auto& [width, pinned, shown] :
         {Row{236, 0, 8}, Row{236, 2, 8}, Row{276, 0, 10}, Row{276, 2, 10}, Row{496, 2, 19}}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const QSize size(scaled(width), scaled(28));
            const LastColorsPlaces places = placesOfLastColors(size, pinned, 50, direction);
            EXPECT_EQ(places.swatches.size(), shown) << width << ", " << pinned;
            EXPECT_EQ(places.rule.has_value(), pinned > 0);
            const QRectF last = places.swatches.back();
            const bool mirrored = direction == Qt::RightToLeft;
            const double gap = mirrored ? last.left() - (places.button.x() + places.button.width())
                                        : places.button.x() - last.right();
            EXPECT_NEAR(gap, scaled(4), 0.01) << width << ", " << pinned;
            EXPECT_GE(last.width(), scaled(20));
            EXPECT_NEAR(
                mirrored ? size.width() - places.swatches[0].right() : places.swatches[0].left(), 0,
                0.01);
        }
    }
}

TEST(LastColorsPlacesTest, FewColoursKeepTheirSize)
{
    const QSize size(scaled(276), scaled(28));
    const auto many = placesOfLastColors(size, 0, 50, Qt::LeftToRight);
    const auto one = placesOfLastColors(size, 0, 1, Qt::LeftToRight);
    ASSERT_EQ(one.swatches.size(), 1U);
    EXPECT_EQ(one.swatches[0], many.swatches[0]);
    EXPECT_TRUE(
        placesOfLastColors({scaled(20), scaled(28)}, 0, 5, Qt::LeftToRight).swatches.empty());
}

}  // namespace
}  // namespace vantorel
