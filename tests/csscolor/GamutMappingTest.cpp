#include "csscolor/GamutMapping.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantorel {
namespace {

ColorTriple srgbOfOklch(double lightness, double chroma, double hue)
{
    return srgbFromOklab(rectangularFromPolar({lightness, chroma, hue}));
}

TEST(GamutMappingTest, ColoursInGamutAreUnchanged)
{
    for (const ColorTriple& srgb : {ColorTriple{0, 0, 0}, ColorTriple{1, 1, 1},
                                    ColorTriple{1, 0, 0.25}, ColorTriple{0.1, 0.2, 0.3}}) {
        EXPECT_FALSE(isOutsideSRGB(srgb));
        EXPECT_EQ(mappedIntoSRGB(srgb), srgb);
    }
}

TEST(GamutMappingTest, HalfAnEightBitStepOutsideCountsAsInGamut)
{
    EXPECT_FALSE(isOutsideSRGB({1.0019, 0.5, -0.0019}));
    EXPECT_EQ(mappedIntoSRGB({1.0019, 0.5, -0.0019}), (ColorTriple{1, 0.5, 0}));
    EXPECT_FALSE(isOutsideSRGB({1 + 0.5 / 255, 0.5, -0.5 / 255}));
    EXPECT_TRUE(isOutsideSRGB({1.002, 0.5, 0}));
    EXPECT_TRUE(isOutsideSRGB({0.5, -0.002, 0}));
}

TEST(GamutMappingTest, ColoursBeyondWhiteAndBlackLoseTheirHue)
{
    EXPECT_EQ(mappedIntoSRGB({1.5, 1.5, 1.2}), (ColorTriple{1, 1, 1}));
    EXPECT_EQ(mappedIntoSRGB({-0.2, -0.1, -0.2}), (ColorTriple{0, 0, 0}));
    EXPECT_EQ(srgbByReducedChroma({1, 0.2, 0.1}), (ColorTriple{1, 1, 1}));
    EXPECT_EQ(srgbByReducedChroma({0, 0.2, 0.1}), (ColorTriple{0, 0, 0}));
}

/// Colours not noticeably out of gamut are clipped and keep their chroma; Display P3 red is further
/// out than that.
TEST(GamutMappingTest, KnownColoursAreMappedAsExpected)
{
    struct Row {
        ColorTriple srgb;
        ColorTriple mapped;
    };
    for (const Row& row : {
             Row{{1.0930663, -0.2267420, -0.1501349}, {1, 0.0445695, 0.0459316}},  // P3 red
             Row{srgbOfOklch(0.5, 0.4, 120), {0.3526032, 0.4287437, 0}},
             Row{srgbOfOklch(0.5, 0.5656854, 315), {0.5986374, 0, 0.7829886}},
             Row{{1.01, 0.5, 0.5}, {1, 0.5, 0.5}},
         }) {
        const ColorTriple mapped = mappedIntoSRGB(row.srgb);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(mapped[i], row.mapped[i], 1e-5);
    }
}

TEST(GamutMappingTest, MappingDoesNotNoticeablyChangeHueOrLightness)
{
    int outside = 0;
    for (double lightness = 0.05; lightness < 1; lightness += 0.05) {
        for (double chroma = 0.05; chroma < 0.5; chroma += 0.05) {
            for (double hue = 0; hue < 360; hue += 7) {
                const ColorTriple srgb = srgbOfOklch(lightness, chroma, hue);
                const ColorTriple mapped = mappedIntoSRGB(srgb);
                ASSERT_TRUE(std::ranges::all_of(
                    mapped, [](double channel) { return channel >= 0 && channel <= 1; }));
                if (!isOutsideSRGB(srgb)) continue;
                ++outside;
                // Clipping may move a colour by the just noticeable difference of 0.02 in any
                // direction.
                const ColorTriple oklab = oklabFromSRGB(mapped);
                const double angle = hue * 3.14159265358979 / 180;
                const double offHue = oklab[1] * std::sin(angle) - oklab[2] * std::cos(angle);
                ASSERT_NEAR(oklab[0], lightness, 0.0201) << chroma << ' ' << hue;
                ASSERT_NEAR(offHue, 0, 0.0201) << lightness << ' ' << chroma << ' ' << hue;
                // No more chroma than that is lost: some channel is at its limit.
                ASSERT_TRUE(std::ranges::any_of(
                    mapped, [](double channel) { return channel <= 1e-9 || channel >= 1 - 1e-9; }));
            }
        }
    }
    EXPECT_GT(outside, 5000);
}

TEST(GamutMappingTest, ColoursOfTheDesktopAreMappedLikeOthers)
{
    const ColorTriple wide = convertedColor({0, 1, 0}, ColorSpace::displayP3, ColorSpace::srgb);
    const auto colorOf = [](const ColorTriple& srgb) {
        return HostColor::colorWithCalibratedRed(srgb[0], srgb[1], srgb[2], 0.5);
    };
    EXPECT_TRUE(isOutsideSRGB(colorOf(wide)));
    EXPECT_FALSE(isOutsideDisplayP3(colorOf(wide)));
    EXPECT_EQ(mappedIntoSRGB(colorOf(wide)), colorOf(mappedIntoSRGB(wide)));
    const ColorTriple wider = convertedColor({0, 1, 0}, ColorSpace::rec2020, ColorSpace::srgb);
    EXPECT_TRUE(isOutsideDisplayP3(colorOf(wider)));
}

TEST(GamutMappingTest, OtherColoursOfTheDesktopStayAsTheyAre)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const HostColor& color :
         {HostColor::colorWithCalibratedRed(0.1, 0.2, 0.7, 0.3), HostColor::patternColor(),
          HostColor::colorWithCalibratedRed(infinity, 0, 0, 1)}) {
        EXPECT_FALSE(isOutsideSRGB(color));
        EXPECT_FALSE(isOutsideDisplayP3(color));
        EXPECT_EQ(mappedIntoSRGB(color), color);
    }
    EXPECT_FALSE(isOutsideSRGB(HostColor::colorWithCalibratedRed(std::nan(""), 2, 0, 1)));
}

}  // namespace
}  // namespace vantorel
