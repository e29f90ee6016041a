#include "colormath/Differences.h"

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "text/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace vantorel {
namespace {

std::vector<CSSColorValue> colorsOf(const std::vector<const char*>& texts)
{
    std::vector<CSSColorValue> colors;
    colors.reserve(texts.size());
    for (const char* text : texts)
        colors.push_back(readCSSColor(text)->value);
    return colors;
}

std::vector<std::string> distinctCodes(const std::vector<const char*>& first, std::size_t count)
{
    std::vector<std::string> codes;
    for (const CSSColorValue& color : withDistinctColors(colorsOf(first), count)) {
        const auto& [red, green, blue] = color.components;
        codes.push_back(
            utf8FromUtf16(*hexText(HostColor::colorWithCalibratedRed(red, green, blue, 1))));
    }
    return codes;
}

TEST(DifferencesTest, TheNearestColourIsNearestInOklab)
{
    // In sRGB the first is nearer to black: 32 in each channel, against 64 in one.
    const auto colors = colorsOf({"#202020", "#000040", "white", "white"});
    const NearestColor nearest(colors);
    EXPECT_EQ(nearest.placeFor(readCSSColor("black")->value), 1U);
    EXPECT_EQ(nearest.placeFor(colors[0]), 0U);
    EXPECT_EQ(nearest.placeFor(readCSSColor("oklch(99% 0.01 100)")->value), 2U);
}

TEST(DifferencesTest, TheNearestColourIsFoundAsByComparingAll)
{
    std::mt19937 random(17);
    const auto fraction = [&random] { return static_cast<double>(random() % 256) / 255; };
    const auto anyColor = [&] {
        CSSColorValue color;
        color.components = {fraction(), fraction(), fraction()};
        return color;
    };
    std::vector<CSSColorValue> colors(3000);
    // A third are greys, and many of one lightness.
    for (std::size_t i = 0; i < colors.size(); ++i) {
        colors[i] = anyColor();
        const double grey = fraction();
        if (i % 3 == 0) colors[i].components = {grey, grey, grey};
        if (i % 3 == 1) {
            colors[i].space = ColorSpace::oklch;
            colors[i].components = {0.5, 0.1, static_cast<double>(i % 360)};
        }
    }
    const NearestColor nearest(colors);
    const auto oklabOfColor = [](const CSSColorValue& color) {
        return convertedColor(color.components, color.space, ColorSpace::oklab);
    };
    for (int i = 0; i < 300; ++i) {
        const CSSColorValue wanted = i % 4 == 0 ? colors[random() % colors.size()] : anyColor();
        const auto distanceTo = [&](const CSSColorValue& color) {
            double sum = 0;
            for (std::size_t c = 0; c < 3; ++c)
                sum += std::pow(oklabOfColor(color)[c] - oklabOfColor(wanted)[c], 2);
            return sum;
        };
        const auto expected = std::ranges::min_element(colors, {}, distanceTo);
        EXPECT_EQ(nearest.placeFor(wanted), static_cast<std::size_t>(expected - colors.begin()));
    }
}

TEST(DifferencesTest, ColoursThatAreNotNumbersAreComparedAsZero)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    auto colors = colorsOf({"white", "black", "red"});
    colors.push_back({});
    colors.back().components = {nan, nan, nan};
    colors.push_back({});
    colors.back().components = {infinity, -infinity, 0};
    const NearestColor nearest(colors);
    EXPECT_EQ(nearest.placeFor(colors[0]), 0U);
    EXPECT_EQ(nearest.placeFor(colors[3]), 1U);
    EXPECT_LT(nearest.placeFor(colors[4]), colors.size());
}

/// The codes were computed with the same rule in another language.
TEST(DifferencesTest, DistinctColoursAreTheSameEachTime)
{
    EXPECT_THAT(distinctCodes({}, 8),
                testing::ElementsAre("#ff00ff", "#00ff00", "#334400", "#0000ff", "#ff8822",
                                     "#00bbff", "#880088", "#449900"));
    EXPECT_THAT(distinctCodes({"white", "#ff8000"}, 4),
                testing::ElementsAre("#ffffff", "#ff8000", "#0000bb", "#dd00ff"));
    EXPECT_THAT(distinctCodes({"white", "black"}, 1), testing::ElementsAre("#ffffff", "#000000"));
}

}  // namespace
}  // namespace vantorel
