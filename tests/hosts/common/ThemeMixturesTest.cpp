#include "hosts/common/ThemeMixtures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace vantorel {
namespace {

HostColor grey(double level)
{
    return HostColor::colorWithCalibratedRed(level, level, level, 1);
}

double contrast(const HostColor& a, const HostColor& b)
{
    const auto luminance = [](const HostColor& color) {
        // All colours of this test are grey.
        const double level = color.calibratedRGB()->red;
        return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    };
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

TEST(ThemeMixturesTest, MixturesAreReadableOnTheWindow)
{
    for (const auto& [window, text] : std::vector<std::pair<double, double>>{
             {0.95, 0.1}, {0.14, 0.93}, {0, 1}, {1, 0}, {0.8, 0.1}}) {
        const ThemeBasis basis{grey(window), grey(1), grey(text), grey(0.5)};
        EXPECT_GE(contrast(themeColorOf(basis, HostThemeColor::secondaryText), basis.window), 4.5);
        EXPECT_GE(contrast(themeColorOf(basis, HostThemeColor::edge), basis.window), 3);
        EXPECT_NE(themeColorOf(basis, HostThemeColor::line), basis.window);
    }
}

TEST(ThemeMixturesTest, WithoutEnoughContrastItIsTheText)
{
    const ThemeBasis basis{grey(0.5), grey(0.5), grey(0.6), grey(0.5)};
    EXPECT_EQ(themeColorOf(basis, HostThemeColor::secondaryText), basis.text);
}

TEST(ThemeMixturesTest, WhatAThemeHasIsItsOwn)
{
    const ThemeBasis basis{grey(0.1), grey(0.2), grey(0.9), grey(0.7)};
    EXPECT_EQ(themeColorOf(basis, HostThemeColor::window), basis.window);
    EXPECT_EQ(themeColorOf(basis, HostThemeColor::base), basis.base);
    EXPECT_EQ(themeColorOf(basis, HostThemeColor::text), basis.text);
    EXPECT_EQ(themeColorOf(basis, HostThemeColor::accent), basis.accent);
}

TEST(ThemeMixturesTest, APatternIsHarmless)
{
    const ThemeBasis basis{HostColor::patternColor(), grey(1), HostColor::patternColor(), grey(0)};
    EXPECT_TRUE(themeColorOf(basis, HostThemeColor::secondaryText).calibratedRGB());
}

}  // namespace
}  // namespace vantorel
