#include "colormath/Differences.h"

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "text/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {
namespace {

std::vector<CSSColorValue> colorsOf(const std::vector<const char*>& texts)
{
    std::vector<CSSColorValue> colors;
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
