#include "mix/MixModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vantorel {
namespace {

HostColor rgb(double red, double green, double blue, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(red, green, blue, alpha);
}

TEST(MixModelTest, ACarriedColourStaysExactlyWhatItWas)
{
    MixModel model;
    const HostColor color = rgb(0.1, 0.7, 0.3, 0.5);
    model.takeColor(color);
    for (const MixSpace space : {MixSpace::hsl, MixSpace::hsv, MixSpace::lab, MixSpace::oklch}) {
        model.setSpace(space);
        EXPECT_EQ(model.color(), color);
    }
}

TEST(MixModelTest, AGreyKeepsTheHueThatWasChosen)
{
    MixModel model;
    model.takeColor(rgb(0.2, 0.4, 0.9));
    const double hue = model.components()[2];
    model.setComponent(1, 0);
    model.takeColor(model.color());
    EXPECT_NEAR(model.components()[2], hue, 1e-9);
    model.takeColor(rgb(0.5, 0.5, 0.5));
    EXPECT_NEAR(model.components()[2], hue, 1e-9) << "also one from elsewhere";
    model.takeColor(rgb(1, 0, 0));
    EXPECT_NEAR(model.components()[2], 29.2, 0.1);
}

TEST(MixModelTest, BlackAndWhiteKeepTheSaturation)
{
    for (const auto& [space, lightness] :
         {std::pair{MixSpace::hsl, 100.0}, {MixSpace::hsl, 0.0}, {MixSpace::hsv, 0.0}}) {
        MixModel model;
        model.setSpace(space);
        model.setComponents({210, 60, 50});
        model.setComponent(2, lightness);
        model.takeColor(model.color());
        EXPECT_EQ(model.components(), (ColorTriple{210, 60, lightness}));
        model.setComponent(2, 40);
        EXPECT_EQ(model.components(), (ColorTriple{210, 60, 40}));
    }
}

TEST(MixModelTest, ARoundedEchoMovesNothing)
{
    MixModel model;
    model.setComponents({0.6, 0.1, 250});
    const auto channel = [](double value) { return std::round(value * 65535) / 65535; };
    const ColorTriple srgb = model.srgb();
    model.takeColor(rgb(channel(srgb[0]), channel(srgb[1]), channel(srgb[2])));
    EXPECT_EQ(model.components(), (ColorTriple{0.6, 0.1, 250}));
}

TEST(MixModelTest, WhatIsNoColourChangesNothing)
{
    MixModel model;
    const HostColor color = rgb(0.1, 0.7, 0.3);
    model.takeColor(color);
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const auto& other :
         {std::optional<HostColor>(), std::optional(HostColor::patternColor()),
          std::optional(rgb(std::nan(""), 0, 0)), std::optional(rgb(0, infinity, 0)),
          std::optional(rgb(0, 0, -1e300)), std::optional(rgb(0, 0, 0, std::nan("")))}) {
        model.takeColor(other);
        EXPECT_EQ(model.color(), color);
    }
}

TEST(MixModelTest, ColoursOutsideSRGBAreHeld)
{
    MixModel model;
    model.setComponents({0.7, 0.3, 150});
    EXPECT_LT(model.srgb()[0], 0);
    const HostColor color = model.color();
    model.setSpace(MixSpace::hsl);
    EXPECT_EQ(model.color(), color);
    model.setComponent(2, 40);
    for (const double channel : model.srgb()) {
        EXPECT_GE(channel, 0) << "HSL has only colours of sRGB";
        EXPECT_LE(channel, 1);
    }
}

TEST(MixModelTest, HuesGoRoundAndOpacitiesHaveEnds)
{
    MixModel model;
    model.setComponents({0.6, 0.1, -30});
    EXPECT_EQ(model.components()[2], 330);
    model.setAlpha(3);
    EXPECT_EQ(model.alpha(), 1);
    model.setAlpha(-3);
    EXPECT_EQ(model.alpha(), 0);
}

}  // namespace
}  // namespace vantorel
