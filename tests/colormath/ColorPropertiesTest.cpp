#include "colormath/ColorProperties.h"

#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

double valueIn(const char* css, ColorProperty property)
{
    return propertyOf(readCSSColor(css)->value, property);
}

TEST(ColorPropertiesTest, PropertiesAreThoseOfOkLChAndLuminance)
{
    EXPECT_NEAR(valueIn("oklch(60% 0.1 200)", ColorProperty::hue), 200, 1e-9);
    EXPECT_NEAR(valueIn("oklch(60% 0.1 200)", ColorProperty::lightness), 0.6, 1e-9);
    EXPECT_NEAR(valueIn("oklch(60% 0.1 200)", ColorProperty::chroma), 0.1, 1e-9);
    EXPECT_NEAR(valueIn("lime", ColorProperty::luminance), 0.7151686788, 1e-6);
    EXPECT_NEAR(valueIn("white", ColorProperty::luminance), 1, 1e-9);
}

TEST(ColorPropertiesTest, GreysHaveTheSmallestHue)
{
    EXPECT_EQ(valueIn("gray", ColorProperty::hue), -1);
    EXPECT_EQ(valueIn("white", ColorProperty::hue), -1);
    EXPECT_GE(valueIn("rgb(255 0 1)", ColorProperty::hue), 0);
}

}  // namespace
}  // namespace vantorel
