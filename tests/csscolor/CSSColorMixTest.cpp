#include "csscolor/CSSColorReader.h"
#include "text/HexDigits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

/// Colours that are computed from others.
namespace vantorel {
namespace {

/// "rrggbb", "rrggbbaa", or the sentence of the refusal.
std::string outcomeOf(const std::string& text, CSSTheme theme = CSSTheme::unknown)
{
    const Result<CSSColor> reading = readCSSColor(text, theme);
    if (!reading) return english(reading.error());
    const auto c = reading->color.calibratedRGB().value();
    std::string code;
    for (const double fraction : {c.red, c.green, c.blue, c.alpha})
        appendHexByte(code, static_cast<std::uint8_t>(std::lround(fraction * 255)), HexCase::lower);
    return c.alpha == 1 ? code.substr(0, 6) : code;
}

TEST(CSSColorMixTest, SharesAreScaledOrMakeTheResultTranslucent)
{
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red, blue)"), "800080");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red 25%, blue)"), "4000bf");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red, 25% blue)"), "bf0040");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, 25% red, blue 75%)"), "4000bf");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red 100%, blue 100%)"), "800080");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red 30%, blue 30%)"), "80008099");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red calc(10% + 15%), blue)"), "4000bf");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red calc(200%), blue)"), "ff0000");
    EXPECT_EQ(outcomeOf("COLOR-MIX(IN SRGB, RED, BLUE);"), "800080");
}

TEST(CSSColorMixTest, AlphaWeighsTheComponentsAndMissingOnesAreTaken)
{
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red, transparent)"), "ff000080");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, rgb(255 0 0 / 25%), rgb(0 0 255 / 75%))"), "4000bf80");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, transparent, transparent)"), "00000000");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, rgb(none 0 0), rgb(64 255 none))"), "408000");
    EXPECT_EQ(outcomeOf("color-mix(in srgb, rgb(0 0 0 / none), rgb(255 255 255 / 50%))"),
              "80808080");
    // The grey has no hue, so that of the red stays.
    EXPECT_EQ(outcomeOf("color-mix(in hsl, red, gray)"), "bf4040");
    // The lightness that is missing in LCH is missing in Lab, too.
    EXPECT_NEAR(readCSSColor("color-mix(in lab, lch(none 0 0), lab(40 0 0))")->value.components[0],
                40, 1e-9);
}

TEST(CSSColorMixTest, AnArcLeadsFromHueToHue)
{
    struct Row {
        int from, to;
        int shorter, longer, increasing, decreasing;
    };
    // The hues halfway.
    for (const Row& row : {
             Row{0, 120, 60, 240, 60, 240},
             Row{120, 0, 60, 240, 240, 60},
             Row{0, 150, 75, 255, 75, 255},
             Row{150, 0, 75, 255, 255, 75},
             Row{0, 180, 90, 90, 90, 270},
             Row{180, 0, 90, 90, 270, 90},
             Row{0, 200, 280, 100, 100, 280},
             Row{200, 0, 280, 100, 280, 100},
             Row{20, 350, 5, 185, 185, 5},
             Row{350, 20, 5, 185, 5, 185},
             Row{40, 40, 40, 220, 40, 40},
             Row{0, 1, 0, 180, 0, 180},
         }) {
        const auto halfway = [&](const std::string& arc) {
            const auto reading = readCSSColor("color-mix(in lch " + arc + " hue, lch(50 20 " +
                                              std::to_string(row.from) + "), lch(50 20 " +
                                              std::to_string(row.to) + "))");
            return static_cast<int>(reading->value.components[2]);
        };
        EXPECT_EQ(halfway("shorter"), row.shorter) << row.from << " to " << row.to;
        EXPECT_EQ(halfway("longer"), row.longer) << row.from << " to " << row.to;
        EXPECT_EQ(halfway("increasing"), row.increasing) << row.from << " to " << row.to;
        EXPECT_EQ(halfway("decreasing"), row.decreasing) << row.from << " to " << row.to;
    }
}

TEST(CSSColorMixTest, BetweenEqualHuesTheLongerArcIsAWholeTurnUp)
{
    const auto reading =
        readCSSColor("color-mix(in lch longer hue, lch(50 20 40), lch(50 20 40) 25%)");
    EXPECT_NEAR(reading->value.components[2], 130, 1e-9);
}

TEST(CSSColorMixTest, AMixtureOutsideSRGBIsMappedLikeAnyOtherColour)
{
    const std::string green = "color(display-p3 0 1 0)";
    EXPECT_EQ(outcomeOf("color-mix(in display-p3, " + green + ", " + green + ")"),
              outcomeOf(green));
}

TEST(CSSColorMixTest, CalculatedSharesAreLimitedTo100Percent)
{
    EXPECT_EQ(outcomeOf("color-mix(in srgb, red calc(100.9%), blue 1%)"),
              outcomeOf("color-mix(in srgb, red 100%, blue 1%)"));
    EXPECT_EQ(readCSSColor("color-mix(in srgb, red calc(101%), blue 100%)")->value.components[0],
              0.5);
}

TEST(CSSColorMixTest, AMixtureCanBeMixedAgain)
{
    EXPECT_EQ(outcomeOf("color-mix(in srgb, color-mix(in srgb, red, blue), white)"), "bf80bf");
    EXPECT_EQ(outcomeOf("rgb(from color-mix(in srgb, red, blue) b g calc(r / 2))"), "800040");
}

TEST(CSSColorMixTest, LightDarkIsOneOfTwoColours)
{
    EXPECT_EQ(outcomeOf("light-dark(#fff, #123456)", CSSTheme::light), "ffffff");
    EXPECT_EQ(outcomeOf("light-dark(#fff, #123456)", CSSTheme::dark), "123456");
    EXPECT_EQ(outcomeOf("rgb(from light-dark(red, blue) r g b)", CSSTheme::dark), "0000ff");
}

TEST(RelativeColorTest, ComponentsOfTheOriginStandForNumbers)
{
    EXPECT_EQ(outcomeOf("rgb(from #123456 b g r)"), "563412");
    EXPECT_EQ(outcomeOf("rgb(from red r 128 b)"), "ff8000");
    EXPECT_EQ(outcomeOf("rgb(from red calc(r / 2) calc(g + 128) b / 50%)"), "80800080");
    EXPECT_EQ(outcomeOf("hsl(from red calc(h + 120) s l)"), "00ff00");
    EXPECT_EQ(outcomeOf("hwb(from red h 50% b)"), "ff8080");
    EXPECT_EQ(outcomeOf("rgb(from rgb(1 2 3 / 40%) r g b)"), "01020366");
    EXPECT_EQ(outcomeOf("rgb(from rgb(1 2 3 / 40%) r g b / alpha)"), "01020366");
    EXPECT_EQ(outcomeOf("rgb(from rgb(1 2 3 / 40%) r g b / calc(alpha * 2))"), "010203cc");
    EXPECT_EQ(outcomeOf("rgb(from rgb(from red g r b) b g r)"), "00ff00");
}

TEST(RelativeColorTest, ChannelsAreNotClampedButTheColourIsMapped)
{
    const Result<CSSColor> reading = readCSSColor("rgb(from red calc(r * 2) g b)");
    ASSERT_TRUE(reading);
    EXPECT_DOUBLE_EQ(reading->value.components[0], 2);
    EXPECT_TRUE(reading->wasOutsideSRGB);
    EXPECT_FALSE(readCSSColor("rgb(510 0 0)")->wasOutsideSRGB);
}

TEST(RelativeColorTest, TheHueOfTheOriginIsWithinATurn)
{
    EXPECT_EQ(outcomeOf("hsl(from hsl(480 100% 50%) calc(h / 2) s l)"), "ffff00");
    EXPECT_EQ(outcomeOf("hsl(from hsl(-1turn 100% 50%) h s l)"), "ff0000");
}

TEST(RelativeColorTest, ColoursOutsideSRGBKeepTheirHue)
{
    // Lighter than white: HSL describes it by the opposite hue, HWB does not.
    const ColorTriple srgb{1.3, 1.2, 1.1};
    for (const ColorSpace space : {ColorSpace::hsl, ColorSpace::hwb}) {
        const ColorTriple values = convertedColor(srgb, ColorSpace::srgb, space);
        EXPECT_NEAR(values[0], space == ColorSpace::hsl ? 210 : 30, 1e-9);
    }
    EXPECT_EQ(outcomeOf("hsl(from lch(from oklab(1 0 0) l c h) h s l)"), "ffffff");
}

TEST(RelativeColorTest, AMissingComponentStaysMissing)
{
    const Result<CSSColor> reading = readCSSColor("lab(from lch(none 10 20 / none) l a b / alpha)");
    ASSERT_TRUE(reading);
    EXPECT_TRUE(reading->value.isMissing[0]);
    EXPECT_FALSE(reading->value.isMissing[1]);
    EXPECT_TRUE(reading->value.isAlphaMissing);
    EXPECT_TRUE(readCSSColor("oklch(from gray l c h)")->value.isMissing[2]) << "a grey has no hue";
}

TEST(NestedColorTest, WrongColoursAreExplained)
{
    const std::vector<std::pair<const char*, const char*>> rows{
        {R"~(color-mix(red, blue))~",
         R"~(color-mix() must begin with "in" and a colour space; write "color-mix(in oklab, red 30%, blue)")~"},
        {R"~(color-mix(in rgb, red, blue))~",
         R"~("rgb" is not a colour space of color-mix(); write a space of color(), or hsl, hwb, lab, lch, oklab or oklch)~"},
        {R"~(color-mix(in oklch sideways hue, red, blue))~",
         R"~("sideways" is not a way around the circle of hues; write shorter, longer, increasing or decreasing hue)~"},
        {R"~(color-mix(in oklab longer hue, red, blue))~",
         R"~("longer" needs a colour space with a hue; use hsl, hwb, lch or oklch)~"},
        {R"~(color-mix(in oklch longer, red, blue))~",
         R"~(The word "hue" is missing before ","; write "color-mix(in oklch longer hue, red, blue)")~"},
        {R"~(color-mix(in oklab red, blue))~",
         R"~("red" is not a way around the circle of hues; write shorter, longer, increasing or decreasing hue)~"},
        {R"~(color-mix(in oklab, red blue))~",
         R"~(A comma is missing before "blue"; write "color-mix(in oklab, red 30%, blue)")~"},
        {R"~(color-mix(in oklab, red -1%, blue))~",
         R"~(The share of a colour must be from 0% to 100%, not "-1%")~"},
        {R"~(color-mix(in oklab, red 100.5%, blue))~",
         R"~(The share of a colour must be from 0% to 100%, not "100.5%")~"},
        {R"~(color-mix(in oklab, red calc(1), blue))~",
         R"~(The share of a colour must be a percentage; write "color-mix(in oklab, red 30%, blue)")~"},
        {R"~(color-mix(in oklab, red 0%, blue 0%))~",
         R"~(color-mix() mixes 0% of both colours; write "color-mix(in oklab, red 30%, blue)")~"},
        {R"~(color-mix(in oklab, red, blue)~",
         R"~(color-mix() is not closed; add a ")" after the values)~"},
        {R"~(color-mix(in oklab, red)~",
         R"~(The function is not closed; write "color-mix(in oklab, red 30%, blue)")~"},
        {R"~(color-mix(in oklab, red, currentcolor))~",
         R"~(The colour of "currentcolor" depends on the page that uses it; write a fixed colour such as "#ff8000", "rgb(255 128 0)" or "orange")~"},
        {R"~(light-dark(#fff, #123456))~",
         R"~(The colour of light-dark() depends on the theme of the page; write one of its two colours)~"},
        {R"~(light-dark(#fff #123456))~",
         R"~(A comma is missing before "#123456"; write "light-dark(black, white)")~"},
        {R"~(light-dark(#fff, redd))~",
         R"~("redd" is not a CSS colour name; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange")~"},
        {R"~(rgb(from red x g b))~",
         R"~(The red of rgb() must be a number or a percentage, not "x")~"},
        {R"~(rgb(from red, r, g, b))~",
         R"~(The red of rgb() is missing before ","; insert a number or a percentage)~"},
        {R"~(rgb(from red r, g, b))~",
         R"~(rgb() does not take commas between its values; write "rgb(255 128 0 / 50%)")~"},
        {R"~(rgb(from red r g b, 1))~",
         R"~(The alpha of rgb() must follow a "/"; write "rgb(255 128 0 / 50%)")~"},
        {R"~(rgb(from var(--x) r g b))~",
         R"~(The value of var() depends on the page that uses it; write the value itself)~"},
        {R"~(rgb(r g b))~", R"~(The red of rgb() must be a number or a percentage, not "r")~"},
    };
    for (const auto& [text, refusal] : rows)
        EXPECT_EQ(outcomeOf(text), refusal) << text;
}

TEST(NestedColorTest, NestingHasALimit)
{
    const auto nested = [](int depth) {
        std::string text = "red";
        for (int i = 0; i < depth; ++i)
            text.insert(0, "rgb(from ").append(" r g b)");
        return text;
    };
    EXPECT_EQ(outcomeOf(nested(32)), "ff0000");
    EXPECT_EQ(outcomeOf(nested(33)), "The parentheses are nested too deep; nest at most 32");
    EXPECT_EQ(outcomeOf("rgb(calc(" + std::string(40, '(') + "1"),
              "The parentheses are nested too deep; nest at most 32");
}

}  // namespace
}  // namespace vantorel
