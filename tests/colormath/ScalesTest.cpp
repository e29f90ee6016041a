#include "colormath/Scales.h"

#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vantorel {
namespace {

CSSColorValue scaledColor(const char* css)
{
    return readCSSColor(css)->value;
}

void expectNear(const CSSColorValue& color, ColorSpace space, const ColorTriple& expected)
{
    const ColorTriple components = convertedColor(color.components, color.space, space);
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(components[i], expected[i], 1e-4);
}

/// The expected values were computed with the published matrices of Oklab in another language.
TEST(ScalesTest, StepsAreEvenInLightness)
{
    const ColorScale scale = colorScale(scaledColor("#ff8000"));
    EXPECT_EQ(scale.ownPlace, 3U);
    const std::array<ColorTriple, scaleSteps.size()> expected{{{0.97000, 0.03926, 52.9850},
                                                               {0.89063, 0.12067, 52.9850},
                                                               {0.81126, 0.16952, 52.9850},
                                                               {0.73189, 0.18580, 52.9850},
                                                               {0.66305, 0.18416, 52.9850},
                                                               {0.59421, 0.17923, 52.9850},
                                                               {0.52537, 0.17101, 52.9850},
                                                               {0.45653, 0.15950, 52.9850},
                                                               {0.38768, 0.14471, 52.9850},
                                                               {0.31884, 0.12662, 52.9850},
                                                               {0.25000, 0.10525, 52.9850}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ColorTriple rectangular = rectangularFromPolar(expected[i]);
        expectNear(scale.colors[i], ColorSpace::oklab, rectangular);
    }
}

TEST(ScalesTest, TheColourIsOneOfItsScale)
{
    for (const char* text : {"white", "black", "gray", "#ff8000", "navy", "oklch(99% 0.4 20 / 0.3)",
                             "color(xyz 2 2 2)", "color(xyz -1 -1 -1)"}) {
        const CSSColorValue color = scaledColor(text);
        const ColorScale scale = colorScale(color);
        EXPECT_EQ(scale.colors[scale.ownPlace].components, color.components) << text;
        double lightness = 2;
        for (const CSSColorValue& step : scale.colors) {
            const double next = convertedColor(step.components, step.space, ColorSpace::oklab)[0];
            EXPECT_LT(next, lightness) << text;
            EXPECT_EQ(step.alpha, color.alpha) << text;
            lightness = next;
        }
    }
    EXPECT_EQ(colorScale(scaledColor("white")).ownPlace, 0U);
    EXPECT_EQ(colorScale(scaledColor("black")).ownPlace, 10U);
}

TEST(ScalesTest, TintsShadesAndTonesEndBeforeTheirEnds)
{
    const CSSColorValue color = scaledColor("oklab(60% 0.08 -0.04 / 0.5)");
    const auto tints = tintsOf(color, 4);
    ASSERT_EQ(tints.size(), 4U);
    expectNear(tints[0], ColorSpace::oklab, {0.6, 0.08, -0.04});
    expectNear(tints[1], ColorSpace::oklab, {0.7, 0.06, -0.03});
    expectNear(tints[3], ColorSpace::oklab, {0.9, 0.02, -0.01});
    expectNear(shadesOf(color, 2)[1], ColorSpace::oklab, {0.3, 0.04, -0.02});
    expectNear(tonesOf(color, 2)[1], ColorSpace::oklab, {0.6, 0.04, -0.02});
    EXPECT_EQ(tonesOf(color, 2)[1].alpha, 0.5);
    EXPECT_EQ(shadesOf(color, 1).size(), 1U);
}

}  // namespace
}  // namespace vantorel
