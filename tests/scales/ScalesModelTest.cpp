#include "scales/ScalesModel.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

using testing::ElementsAre;

HostColor blueColor(double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(59 / 255.0, 130 / 255.0, 246 / 255.0, alpha);
}
HostColor wideGreen()
{
    return HostColor::colorWithCalibratedRed(-0.5, 1.02, -0.3, 0.5);
}

ScalesModel modelOf(const HostColor& color)
{
    ScalesModel model;
    model.takeColor(color);
    return model;
}

std::vector<std::u16string> codesOf(const Swatches& swatches)
{
    std::vector<std::u16string> codes;
    for (const Swatch& swatch : swatches)
        codes.push_back(*hexText(swatch.color));
    return codes;
}

/// All rows of a model.
std::vector<Swatches> rowsOf(const ScalesModel& model)
{
    std::vector<Swatches> rows{model.scale(), model.tints(), model.shades(), model.tones(),
                               model.gradient()};
    for (const Scheme scheme : allSchemes)
        rows.push_back(model.scheme(scheme));
    return rows;
}

TEST(ScalesModelTest, TheScaleHasTheColourAtItsStep)
{
    const Swatches scale = modelOf(blueColor()).scale();
    EXPECT_EQ(scale.front().label, u"50");
    EXPECT_EQ(scale.back().label, u"950");
    const auto own = std::ranges::find(scale, true, &Swatch::isOwn);
    ASSERT_NE(own, scale.end());
    EXPECT_EQ(own->label, u"500");
    EXPECT_EQ(own->color, blueColor());
}

TEST(ScalesModelTest, EveryRowHasTheColourOnceAndKeepsItsOpacity)
{
    for (const HostColor& color : {blueColor(0.4), wideGreen()}) {
        for (const Swatches& row : rowsOf(modelOf(color))) {
            EXPECT_EQ(std::ranges::count(row, true, &Swatch::isOwn), 1);
            for (const Swatch& swatch : row) {
                EXPECT_NEAR(swatch.color.alphaComponent(), color.alphaComponent(), 1e-9);
                if (swatch.isOwn) {
                    EXPECT_EQ(swatch.color, color) << "outside sRGB, too";
                } else {
                    EXPECT_FALSE(isOutsideSRGB(swatch.color));
                }
            }
        }
    }
}

TEST(ScalesModelTest, SchemesAreThoseOfOKLCH)
{
    const ScalesModel model = modelOf(blueColor());
    EXPECT_THAT(codesOf(model.scheme(Scheme::complement)), ElementsAre(u"#3b82f6", u"#b57a00"));
}

TEST(ScalesModelTest, TheGradientEndsAtTheComplementUntilAnotherColourIsSet)
{
    ScalesModel model = modelOf(blueColor());
    EXPECT_EQ(model.gradient().size(), 7U);
    EXPECT_EQ(codesOf(model.gradient()).back(), u"#b57a00");
    model.setEnd(HostColor::whiteColor());
    model.setSteps(3);
    model.setSpace(4);
    ASSERT_STREQ(gradientSpaces()[4].key, "srgb");
    EXPECT_THAT(codesOf(model.gradient()), ElementsAre(u"#3b82f6", u"#9dc1fb", u"#ffffff"));
    model.setEnd(HostColor::patternColor());
    EXPECT_EQ(codesOf(model.gradient()).back(), u"#ffffff") << "a pattern has no effect";
    model.setEnd(std::nullopt);
    EXPECT_EQ(codesOf(model.gradient()).back(), u"#b57a00");
}

TEST(ScalesModelTest, StepsAndSpacesStayInTheirRanges)
{
    ScalesModel model = modelOf(blueColor());
    model.setSteps(-5);
    EXPECT_EQ(model.gradient().size(), 2U);
    model.setSteps(1000000);
    EXPECT_EQ(model.gradient().size(), 24U);
    model.setSpace(99);
    EXPECT_EQ(model.space(), 0U);
}

TEST(ScalesModelTest, GreyVisionSeesGreys)
{
    for (const Swatch& swatch : modelOf(blueColor()).seenScale(ColorVision::grey)) {
        const auto rgb = *swatch.color.calibratedRGB();
        EXPECT_NEAR(rgb.red, rgb.green, 1e-6);
        EXPECT_NEAR(rgb.green, rgb.blue, 1e-6);
    }
}

TEST(ScalesModelTest, TheNameIsThatOfTheNearestColourOfCSS)
{
    EXPECT_EQ(modelOf(blueColor()).name(), "dodgerblue");
    EXPECT_EQ(modelOf(HostColor::blackColor()).name(), "black");
}

TEST(ScalesModelTest, WhatIsNoColourLeavesTheLastOne)
{
    ScalesModel model = modelOf(blueColor());
    for (const auto& other :
         {std::optional<HostColor>(), std::optional(HostColor::patternColor()),
          std::optional(HostColor::colorWithCalibratedRed(std::nan(""), 0, 0, 1)),
          std::optional(HostColor::colorWithCalibratedRed(0, 0, 1e300, 1)),
          std::optional(HostColor::colorWithCalibratedRed(0, 0, 0, HUGE_VAL))}) {
        model.takeColor(other);
        EXPECT_EQ(model.color(), blueColor());
    }
}

}  // namespace
}  // namespace vantorel
