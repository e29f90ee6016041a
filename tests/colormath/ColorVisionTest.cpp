#include "colormath/ColorVision.h"

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

std::string seenText(ColorVision vision, const char* css)
{
    const CSSColorValue seen = seenWith(vision, readCSSColor(css)->value);
    const auto& [red, green, blue] = seen.components;
    return utf8FromUtf16(*hexText(HostColor::colorWithCalibratedRed(red, green, blue, seen.alpha)));
}

/// The codes were computed from the published matrices in another language.
TEST(ColorVisionTest, ColoursLookAsInTheModel)
{
    EXPECT_EQ(seenText(ColorVision::protanopia, "#ff8000"), "#a69100");
    EXPECT_EQ(seenText(ColorVision::protanopia, "#3366cc"), "#2872d0");
    EXPECT_EQ(seenText(ColorVision::deuteranopia, "#ff8000"), "#c4ae00");
    EXPECT_EQ(seenText(ColorVision::deuteranopia, "#3366cc"), "#0064ca");
    EXPECT_EQ(seenText(ColorVision::tritanopia, "#ff8000"), "#ff626d");
    EXPECT_EQ(seenText(ColorVision::tritanopia, "#3366cc"), "#007e8f");
    EXPECT_EQ(seenText(ColorVision::grey, "#ff8000"), "#a3a3a3");
    EXPECT_EQ(seenText(ColorVision::grey, "#3366cc"), "#6b6b6b");
}

TEST(ColorVisionTest, GreysAndTheAlphaStay)
{
    for (const ColorVision vision : {ColorVision::protanopia, ColorVision::deuteranopia,
                                     ColorVision::tritanopia, ColorVision::grey}) {
        EXPECT_EQ(seenText(vision, "rgb(128 128 128 / 0.5)"), "#80808080");
        EXPECT_EQ(seenText(vision, "white"), "#ffffff");
        EXPECT_EQ(seenText(vision, "black"), "#000000");
    }
}

}  // namespace
}  // namespace vantorel
