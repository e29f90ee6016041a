#include "colormath/Schemes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

using testing::ElementsAre;

CSSColorValue oklch(double lightness, double chroma, double hue)
{
    CSSColorValue value;
    value.space = ColorSpace::oklch;
    value.components = {lightness, chroma, hue};
    value.alpha = 0.5;
    return value;
}

std::vector<int> huesOf(const ColorScheme& scheme)
{
    std::vector<int> hues;
    for (const CSSColorValue& color : scheme.colors)
        hues.push_back(
            static_cast<int>(std::lround(converted(color, ColorSpace::oklch).components[2])));
    return hues;
}

TEST(SchemesTest, EachSchemeTurnsTheHue)
{
    const CSSColorValue color = oklch(0.6, 0.1, 40);
    EXPECT_THAT(huesOf(schemeOf(Scheme::complement, color)), ElementsAre(40, 220));
    EXPECT_THAT(huesOf(schemeOf(Scheme::split, color)), ElementsAre(40, 190, 250));
    EXPECT_THAT(huesOf(schemeOf(Scheme::triad, color)), ElementsAre(40, 160, 280));
    EXPECT_THAT(huesOf(schemeOf(Scheme::tetrad, color)), ElementsAre(40, 130, 220, 310));
    EXPECT_THAT(huesOf(schemeOf(Scheme::analogous, color)), ElementsAre(340, 10, 40, 70, 100));
}

TEST(SchemesTest, TheColourItselfIsAtItsPlaceAndAllElseStays)
{
    const CSSColorValue color = oklch(0.6, 0.1, 40);
    for (const Scheme scheme : allSchemes) {
        const ColorScheme found = schemeOf(scheme, color);
        EXPECT_EQ(found.colors[found.ownPlace].components, color.components);
        for (const CSSColorValue& each : found.colors) {
            EXPECT_NEAR(each.components[0], 0.6, 1e-9);
            EXPECT_NEAR(each.components[1], 0.1, 1e-9);
            EXPECT_EQ(each.alpha, 0.5);
        }
    }
}

TEST(SchemesTest, AGreyHasOnlyItself)
{
    CSSColorValue grey;
    grey.components = {0.5, 0.5, 0.5};
    for (const CSSColorValue& each : schemeOf(Scheme::tetrad, grey).colors) {
        const CSSColorValue srgb = converted(each, ColorSpace::srgb);
        for (const double channel : srgb.components)
            EXPECT_NEAR(channel, 0.5, 1e-6);
    }
}

}  // namespace
}  // namespace vantorel
