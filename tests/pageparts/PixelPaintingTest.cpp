#include "pageparts/PixelPainting.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

constexpr std::uint32_t redPixel = HostPixels::opaque(255, 0, 0);

PixelLook plainLook()
{
    PixelLook look;
    look.ground = 0xFFE0E0E0U;
    return look;
}

TEST(PixelPaintingTest, BlendingKeepsTheOpacityOfThePixel)
{
    EXPECT_EQ(blended(blackPixel, whitePixel, 0.5), 0xFF808080U);
    EXPECT_EQ(blended(blackPixel, whitePixel, 0), blackPixel);
    EXPECT_EQ(blended(blackPixel, whitePixel, 1), whitePixel);
    EXPECT_EQ(blended(0, whitePixel, 1), 0U);
    EXPECT_EQ(blended(0x80000000U, whitePixel, 1), 0x80808080U);
}

TEST(PixelPaintingTest, ColoursAreClippedAndNaNIsHarmless)
{
    EXPECT_EQ(pixelOf(ColorTriple{2, -1, 0.5}), 0xFFFF0080U);
    EXPECT_EQ(pixelOf(ColorTriple{std::nan(""), 0, 1}), 0xFF0000FFU);
}

TEST(PixelPaintingTest, AFrameHasRoundCornersAndLeavesTheMiddle)
{
    HostPixels pixels({40, 30});
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            pixels.row(y)[x] = redPixel;
    frameRounded(pixels, 8, 1, HostColor::blackColor());
    EXPECT_EQ(pixels.row(0)[0], 0U);
    EXPECT_EQ(pixels.row(29)[39], 0U);
    EXPECT_EQ(pixels.row(0)[20], blackPixel);
    EXPECT_EQ(pixels.row(15)[0], blackPixel);
    EXPECT_EQ(pixels.row(15)[39], blackPixel);
    EXPECT_EQ(pixels.row(1)[20], redPixel);
    EXPECT_EQ(pixels.row(15)[20], redPixel);
}

TEST(PixelPaintingTest, ALineIsPaintedOnceWhereItsPiecesMeet)
{
    HostPixels pixels({20, 20});
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            pixels.row(y)[x] = blackPixel;
    strokeLine(pixels, {{4, 10}, {10, 10}, {16, 10}}, 2, whitePixel, 0.5, 0);
    EXPECT_EQ(pixels.row(10)[6], 0xFF808080U);
    EXPECT_EQ(pixels.row(10)[10], 0xFF808080U);
    EXPECT_EQ(pixels.row(5)[10], blackPixel);
}

TEST(PixelPaintingTest, DashesHaveGapsAndPlacesOutsideAreHarmless)
{
    HostPixels pixels({40, 8});
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 40; ++x)
            pixels.row(y)[x] = blackPixel;
    strokeLine(pixels, {{-100, 4}, {140, 4}}, 2, whitePixel, 1, 5);
    int painted = 0;
    for (int x = 0; x < 40; ++x)
        painted += pixels.row(4)[x] == whitePixel ? 1 : 0;
    EXPECT_GT(painted, 15);
    EXPECT_LT(painted, 32);
    strokeLine(pixels, {}, 2, whitePixel, 1, 0);
    strokeLine(pixels, {{3, 3}, {3, 3}}, 2, whitePixel, 1, 5);
}

TEST(PixelPaintingTest, AMarkHasAWhiteAndABlackRing)
{
    const HostPixels mark = markPicture({18, 18}, 1, redPixel);
    EXPECT_EQ(mark.row(9)[9], redPixel);
    EXPECT_EQ(mark.row(9)[0] & 0xFFFFFFU, 0U);
    EXPECT_GT(mark.row(9)[0] >> 24U, 200U);
    EXPECT_EQ(mark.row(9)[2], whitePixel);
    EXPECT_EQ(mark.row(0)[0], 0U);
    EXPECT_TRUE(markPicture({0, 0}, 1, redPixel).isEmpty());
}

TEST(PixelPaintingTest, ATrackLeadsFromItsFirstColourToItsLast)
{
    const auto colors = [](double fraction) { return TrackColor{{fraction, 0, 0}, 1}; };
    const HostPixels right = trackPicture({100, 12}, false, 6, plainLook(), colors);
    const auto redOf = [](std::uint32_t pixel) { return pixel >> 16U & 255U; };
    EXPECT_EQ(redOf(right.row(6)[4]), 0U);
    EXPECT_EQ(redOf(right.row(6)[95]), 255U);
    EXPECT_NEAR(redOf(right.row(6)[50]), 128, 3);
    const HostPixels up = trackPicture({20, 100}, true, 6, plainLook(), colors);
    EXPECT_EQ(redOf(up.row(95)[10]), 0U);
    EXPECT_EQ(redOf(up.row(4)[10]), 255U);
}

TEST(PixelPaintingTest, WhatLeavesSRGBIsHatched)
{
    const HostPixels track = trackPicture({100, 12}, false, 6, plainLook(), [](double fraction) {
        return TrackColor{{fraction > 0.5 ? 1.5 : 1.0, 0, 0}, 1};
    });
    int before = 0;
    int after = 0;
    for (int x = 10; x < 90; ++x)
        (x < 50 ? before : after) += track.row(6)[x] != redPixel ? 1 : 0;
    EXPECT_EQ(before, 0);
    EXPECT_GT(after, 4);
    EXPECT_LT(after, 20);
}

TEST(PixelPaintingTest, SquaresShineThroughTranslucentColours)
{
    const HostPixels track = trackPicture({60, 12}, false, 6, plainLook(), [](double fraction) {
        return TrackColor{{0, 0, 0}, fraction};
    });
    EXPECT_NE(track.row(3)[12], track.row(9)[12]);
    EXPECT_EQ(track.row(4)[55], blackPixel);
}

}  // namespace
}  // namespace vantorel
