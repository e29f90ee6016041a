#include "colormath/Gradient.h"

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

std::vector<CSSColorValue> stopsOf(const std::vector<const char*>& texts)
{
    std::vector<CSSColorValue> stops;
    stops.reserve(texts.size());
    for (const char* text : texts)
        stops.push_back(readCSSColor(text)->value);
    return stops;
}

std::string colorAt(const std::vector<const char*>& texts, double position,
                    HueArc arc = HueArc::shorter)
{
    const auto stops = stopsOf(texts);
    return utf8FromUtf16(
        cssTextIn(ColorSpace::hsl, gradientColor(stops, position, ColorSpace::hsl, arc)));
}

TEST(GradientTest, StopsAreEvenlySpaced)
{
    const std::vector<const char*> stops{"hsl(0 100% 50%)", "hsl(60 100% 50%)", "hsl(60 100% 90%)"};
    EXPECT_EQ(colorAt(stops, 0), "hsl(0 100% 50%)");
    EXPECT_EQ(colorAt(stops, 0.25), "hsl(30 100% 50%)");
    EXPECT_EQ(colorAt(stops, 0.5), "hsl(60 100% 50%)");
    EXPECT_EQ(colorAt(stops, 0.75), "hsl(60 100% 70%)");
    EXPECT_EQ(colorAt(stops, 1), "hsl(60 100% 90%)");
}

TEST(GradientTest, PositionsOutsideAreTheEnds)
{
    EXPECT_EQ(colorAt({"hsl(0 100% 50%)", "hsl(60 100% 50%)"}, -1), "hsl(0 100% 50%)");
    EXPECT_EQ(colorAt({"hsl(0 100% 50%)", "hsl(60 100% 50%)"}, 2), "hsl(60 100% 50%)");
    EXPECT_EQ(colorAt({"hsl(40 100% 50%)"}, 0.7), "hsl(40 100% 50%)");
}

TEST(GradientTest, HuesGoTheGivenWay)
{
    EXPECT_EQ(colorAt({"hsl(0 100% 50%)", "hsl(60 100% 50%)"}, 0.5, HueArc::longer),
              "hsl(210 100% 50%)");
}

}  // namespace
}  // namespace vantorel
