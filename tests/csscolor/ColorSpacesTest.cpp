#include "csscolor/ColorSpaces.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

namespace vantorel {
namespace {

const std::vector<ColorSpace> allSpaces{
    ColorSpace::srgb,   ColorSpace::srgbLinear,  ColorSpace::displayP3, ColorSpace::displayP3Linear,
    ColorSpace::a98RGB, ColorSpace::proPhotoRGB, ColorSpace::rec2020,   ColorSpace::xyzD65,
    ColorSpace::xyzD50, ColorSpace::hsl,         ColorSpace::hwb,       ColorSpace::lab,
    ColorSpace::lch,    ColorSpace::oklab,       ColorSpace::oklch,
};

void expectComponents(const ColorTriple& found, const ColorTriple& expected, double tolerance)
{
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], tolerance) << "component " << i;
}

TEST(ColorSpacesTest, EveryConversionCanBeUndone)
{
    for (const ColorTriple& srgb : {ColorTriple{1, 0.5, 0},
                                    {0.2, 0.4, 0.6},
                                    {0.9, 0.1, 0.8},
                                    {0.01, 0.02, 0.005},
                                    {-0.1, 0.3, 1.2}}) {
        for (const ColorSpace from : allSpaces) {
            // The border of sRGB is that of hwb().
            const bool isInside = srgb[0] >= 0;
            const ColorTriple values = convertedColor(srgb, ColorSpace::srgb, from);
            if (isInside || from != ColorSpace::hwb) {
                SCOPED_TRACE(static_cast<int>(from));
                expectComponents(srgbFrom(from, values), srgb, 1e-9);
            }
            for (const ColorSpace to : allSpaces) {
                if (!isInside && (from == ColorSpace::hwb || to == ColorSpace::hwb)) continue;
                SCOPED_TRACE(static_cast<int>(to));
                expectComponents(srgbFrom(to, convertedColor(values, from, to)), srgb, 1e-9);
            }
        }
    }
}

TEST(ColorSpacesTest, WhiteIsWhiteInEverySpace)
{
    const auto white = [](ColorSpace space) {
        return convertedColor({1, 1, 1}, ColorSpace::srgb, space);
    };
    for (const ColorSpace space :
         {ColorSpace::srgbLinear, ColorSpace::displayP3, ColorSpace::a98RGB,
          ColorSpace::proPhotoRGB, ColorSpace::rec2020})
        expectComponents(white(space), {1, 1, 1}, 1e-6);
    expectComponents(white(ColorSpace::lab), {100, 0, 0}, 1e-4);
    expectComponents(white(ColorSpace::oklab), {1, 0, 0}, 1e-6);
    expectComponents(white(ColorSpace::xyzD65),
                     {0.3127 / 0.3290, 1, (1 - 0.3127 - 0.3290) / 0.3290}, 1e-6);
    expectComponents(white(ColorSpace::hwb), {0, 100, 0}, 1e-9);
}

/// XYZ of a point of the chromaticity diagram, scaled to a luminance.
ColorTriple xyzOf(double x, double y, double luminance)
{
    return {x / y * luminance, luminance, (1 - x - y) / y * luminance};
}

TEST(ColorSpacesTest, RGBSpacesHaveTheirPrimaries)
{
    struct Row {
        ColorSpace space;
        ColorSpace xyz;
        double tolerance;
        std::array<std::array<double, 2>, 3> primaries;
    };
    // The chromaticities by which the standards define the spaces.
    for (const Row& row : {
             Row{ColorSpace::srgb,
                 ColorSpace::xyzD65,
                 1e-12,
                 {{{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}}}},
             Row{ColorSpace::displayP3,
                 ColorSpace::xyzD65,
                 1e-12,
                 {{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}}}},
             Row{ColorSpace::a98RGB,
                 ColorSpace::xyzD65,
                 1e-12,
                 {{{0.64, 0.33}, {0.21, 0.71}, {0.15, 0.06}}}},
             Row{ColorSpace::rec2020,
                 ColorSpace::xyzD65,
                 1e-12,
                 {{{0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}}}},
             Row{ColorSpace::proPhotoRGB,
                 ColorSpace::xyzD50,
                 1e-9,
                 {{{0.734699, 0.265301}, {0.159597, 0.840403}, {0.036598, 0.000105}}}},
         }) {
        SCOPED_TRACE(static_cast<int>(row.space));
        ColorTriple sum{};
        for (std::size_t i = 0; i < 3; ++i) {
            ColorTriple primary{};
            primary[i] = 1;
            const ColorTriple xyz = convertedColor(primary, row.space, row.xyz);
            const auto [x, y] = row.primaries[i];
            expectComponents(xyz, xyzOf(x, y, xyz[1]), row.tolerance);
            for (std::size_t j = 0; j < 3; ++j)
                sum[j] += xyz[j];
        }
        const bool isD50 = row.xyz == ColorSpace::xyzD50;
        const double x = isD50 ? 0.3457 : 0.3127;
        const double y = isD50 ? 0.3585 : 0.3290;
        expectComponents(sum, xyzOf(x, y, 1), row.tolerance);
    }
}

TEST(ColorSpacesTest, GreysHaveNoHue)
{
    for (const ColorSpace space :
         {ColorSpace::hsl, ColorSpace::hwb, ColorSpace::lch, ColorSpace::oklch}) {
        for (const double grey : {0.0, 0.2, 0.5, 0.73, 1.0}) {
            EXPECT_TRUE(
                isHuePowerless(space, convertedColor({grey, grey, grey}, ColorSpace::srgb, space)))
                << grey;
        }
        EXPECT_FALSE(
            isHuePowerless(space, convertedColor({0.5, 0.5, 0.49}, ColorSpace::srgb, space)));
        EXPECT_TRUE(placeOfHue(space));
    }
    EXPECT_FALSE(isHuePowerless(ColorSpace::lab, {50, 0, 0}));
    EXPECT_FALSE(placeOfHue(ColorSpace::lab));
}

}  // namespace
}  // namespace vantorel
