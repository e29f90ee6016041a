#include "colormath/ColorProperties.h"

#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

double property(const char* css, ColorProperty property)
{
    return propertyOf(readCSSColor(css)->value, property);
}

TEST(ColorPropertiesTest, PropertiesAreThoseOfOkLChAndLuminance)
{
    EXPECT_NEAR(property("oklch(60% 0.1 200)", ColorProperty::hue), 200, 1e-9);
    EXPECT_NEAR(property("oklch(60% 0.1 200)", ColorProperty::lightness), 0.6, 1e-9);
    EXPECT_NEAR(property("oklch(60% 0.1 200)", ColorProperty::chroma), 0.1, 1e-9);
    EXPECT_NEAR(property("lime", ColorProperty::luminance), 0.7151686788, 1e-6);
    EXPECT_NEAR(property("white", ColorProperty::luminance), 1, 1e-9);
}

TEST(ColorPropertiesTest, GreysHaveTheSmallestHue)
{
    EXPECT_EQ(property("gray", ColorProperty::hue), -1);
    EXPECT_EQ(property("white", ColorProperty::hue), -1);
    EXPECT_GE(property("rgb(255 0 1)", ColorProperty::hue), 0);
}

}  // namespace
}  // namespace vantorel
