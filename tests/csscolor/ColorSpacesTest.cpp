#include "csscolor/ColorSpaces.h"

#include <gtest/gtest.h>

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
