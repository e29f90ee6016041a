#include "mix/PlanePicture.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

PixelLook planeLook()
{
    PixelLook look;
    look.ground = 0xFFE0E0E0U;
    return look;
}

TEST(PlanePictureTest, WhatNoScreenShowsIsHatchedGround)
{
    const HostPixels plane = planePicture(ColorPlane(MixSpace::oklch, 264), {120, 90}, planeLook());
    // The upper right corner is beyond every gamut.
    int ground = 0;
    int lines = 0;
    for (int x = 80; x < 110; ++x)
        (plane.row(8)[x] == 0xFFE0E0E0U ? ground : lines) += 1;
    EXPECT_GT(ground, lines);
    EXPECT_GT(lines, 0);
    // Colours within sRGB are as they are.
    EXPECT_EQ(plane.row(45)[5], ColorPlane(MixSpace::oklch, 264).picture({120, 90}).row(45)[5]);
}

TEST(PlanePictureTest, HSLHasNoBorders)
{
    const ColorPlane plane(MixSpace::hsl, 30);
    EXPECT_EQ(planePicture(plane, {60, 40}, planeLook()).row(20)[30],
              plane.picture({60, 40}).row(20)[30]);
}

}  // namespace
}  // namespace vantorel
