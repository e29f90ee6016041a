#include "host/HostPixels.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(HostPixelsTest, ANewPictureIsTransparent)
{
    const HostPixels pixels({3, 2});
    EXPECT_EQ(pixels.size(), (HostPixelSize{3, 2}));
    EXPECT_FALSE(pixels.isEmpty());
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(pixels.row(y)[x], 0U);
}

TEST(HostPixelsTest, WithoutASideAPictureIsEmpty)
{
    for (const HostPixelSize size : {HostPixelSize{0, 5}, {5, 0}, {-1, 5}, {5, -1}, {-3, -3}}) {
        EXPECT_TRUE(HostPixels(size).isEmpty());
        EXPECT_EQ(HostPixels(size).size(), HostPixelSize());
    }
}

TEST(HostPixelsTest, RowsAreIndependentAndCopiesToo)
{
    HostPixels pixels({2, 2});
    pixels.row(1)[0] = HostPixels::opaque(1, 2, 3);
    const HostPixels copy = pixels;
    pixels.row(1)[0] = 0;
    EXPECT_EQ(copy.row(1)[0], 0xFF010203U);
    EXPECT_EQ(copy.row(0)[0], 0U);
    EXPECT_NE(copy, pixels);
}

TEST(HostPixelsTest, ATranslucentPixelIsMultipliedByItsOpacity)
{
    EXPECT_EQ(HostPixels::translucent(255, 128, 0, 255), HostPixels::opaque(255, 128, 0));
    EXPECT_EQ(HostPixels::translucent(255, 128, 0, 0), 0U);
    EXPECT_EQ(HostPixels::translucent(255, 100, 1, 128), 0x80803201U);
}

}  // namespace
}  // namespace vantorel
