#include "csscolor/Contrast.h"

#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vantorel {
namespace {

HostColor color(const char* text)
{
    return readCSSColor(text).value().color;
}

struct ContrastRow {
    const char* foreground;
    const char* background;
    double ratio;
};

TEST(ContrastTest, RatiosMatchTheGuidelines)
{
    for (const ContrastRow& row : {
             ContrastRow{"black", "white", 21},
             ContrastRow{"white", "black", 21},
             ContrastRow{"white", "white", 1},
             ContrastRow{"#767676", "white", 4.5423},
             ContrastRow{"#777777", "white", 4.4781},
             ContrastRow{"red", "white", 3.9985},
             ContrastRow{"blue", "white", 8.5925},
             ContrastRow{"lime", "white", 1.3722},
             ContrastRow{"red", "blue", 2.1490},
             // Half black over white is #808080 in fractions of 0.5.
             ContrastRow{"rgb(0 0 0 / 50%)", "white", 3.9767},
             // The background over white first, then the foreground over both.
             ContrastRow{"black", "rgb(0 0 0 / 50%)", 5.2808},
             ContrastRow{"rgb(0 0 0 / 0)", "rgb(0 0 0 / 50%)", 1},
             ContrastRow{"rgb(0 0 0 / 50%)", "transparent", 3.9767},
             ContrastRow{"transparent", "transparent", 1},
         }) {
        EXPECT_NEAR(contrastRatio(color(row.foreground), color(row.background)).value(), row.ratio,
                    0.0001)
            << row.foreground << " on " << row.background;
    }
}

TEST(ContrastTest, LuminancesMatchTheGuidelines)
{
    EXPECT_DOUBLE_EQ(relativeLuminance(color("black")).value(), 0);
    EXPECT_DOUBLE_EQ(relativeLuminance(color("white")).value(), 1);
    EXPECT_DOUBLE_EQ(relativeLuminance(color("red")).value(), 0.2126);
    EXPECT_DOUBLE_EQ(relativeLuminance(color("lime")).value(), 0.7152);
    EXPECT_DOUBLE_EQ(relativeLuminance(color("blue")).value(), 0.0722);
    EXPECT_NEAR(relativeLuminance(color("rgb(10 10 10)")).value(), 10 / 255.0 / 12.92, 1e-12);
    EXPECT_NEAR(relativeLuminance(color("#808080")).value(), 0.21586, 0.00001);
}

TEST(ContrastTest, VerdictsChangeExactlyAtTheLimits)
{
    struct VerdictRow {
        double ratio;
        ContrastVerdicts verdicts;
    };
    constexpr auto below = [](double limit) { return std::nextafter(limit, 0); };
    for (const VerdictRow& row : {
             VerdictRow{21, {true, true, true, true, true}},
             VerdictRow{7, {true, true, true, true, true}},
             VerdictRow{below(7), {true, false, true, true, true}},
             VerdictRow{4.5, {true, false, true, true, true}},
             VerdictRow{below(4.5), {false, false, true, false, true}},
             VerdictRow{3, {false, false, true, false, true}},
             VerdictRow{below(3), {false, false, false, false, false}},
             VerdictRow{1, {false, false, false, false, false}},
             VerdictRow{std::nan(""), {false, false, false, false, false}},
         }) {
        EXPECT_EQ(contrastVerdicts(row.ratio), row.verdicts) << row.ratio;
    }
}

TEST(ContrastTest, TheLightestGreyForTextOnWhiteIs767676)
{
    EXPECT_TRUE(contrastVerdicts(*contrastRatio(color("#767676"), color("white"))).normalTextAA);
    EXPECT_FALSE(contrastVerdicts(*contrastRatio(color("#777777"), color("white"))).normalTextAA);
    EXPECT_TRUE(contrastVerdicts(*contrastRatio(color("#949494"), color("white"))).componentAA);
    EXPECT_FALSE(contrastVerdicts(*contrastRatio(color("#959595"), color("white"))).componentAA);
}

TEST(ContrastTest, TransparentColoursAreBlendedAsInBrowsers)
{
    const auto mixed = composedOver(color("rgb(255 0 0 / 50%)"), color("rgb(0 0 255 / 50%)"))
                           .value()
                           .calibratedRGB()
                           .value();
    EXPECT_DOUBLE_EQ(mixed.alpha, 0.75);
    EXPECT_DOUBLE_EQ(mixed.red, 2.0 / 3);
    EXPECT_DOUBLE_EQ(mixed.green, 0);
    EXPECT_DOUBLE_EQ(mixed.blue, 1.0 / 3);
    EXPECT_EQ(composedOver(color("lime"), color("red")), color("lime"));
    EXPECT_EQ(composedOver(color("transparent"), color("red")), color("red"));
}

TEST(ContrastTest, StrangeFractionsGiveFiniteRatios)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double strange : {infinity, -infinity, std::nan(""), 1e308, -1e308}) {
        const auto odd = HostColor::colorWithCalibratedRed(strange, strange, strange, strange);
        for (const auto ratio : {contrastRatio(odd, color("white")),
                                 contrastRatio(color("black"), odd), contrastRatio(odd, odd)}) {
            EXPECT_GE(ratio.value(), 1);
            EXPECT_LE(ratio.value(), 21);
        }
    }
}

TEST(ContrastTest, APatternHasNoContrast)
{
    const HostColor pattern = HostColor::patternColor();
    EXPECT_FALSE(relativeLuminance(pattern));
    EXPECT_FALSE(contrastRatio(pattern, color("white")));
    EXPECT_FALSE(contrastRatio(color("white"), pattern));
    EXPECT_FALSE(composedOver(pattern, pattern));
}

}  // namespace
}  // namespace vantorel
