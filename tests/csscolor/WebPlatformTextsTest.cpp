#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <set>

/// The texts of the web platform tests (css/css-color/parsing), with the colours on which two other
/// implementations agree.
namespace vantorel {
namespace {

nlohmann::json webTexts()
{
    std::ifstream file(VANTOREL_CSS_COLOR_TEXTS);
    return nlohmann::json::parse(file);
}

/// The expected values of these were rounded to bytes, all others to five decimals.
bool isRoundedToBytes(const std::string& group, const std::string& text)
{
    static const std::set<std::string> groups{"rgb", "hsl", "hwb", "hex", "named-color"};
    const auto startsWith = [&](const char* function) { return text.find(function) == 0; };
    return groups.contains(group) || startsWith("hsl(from") || startsWith("hwb(from") ||
           startsWith("rgb(from");
}

TEST(WebPlatformTextsTest, EveryColourIsReadAndIsThatOfBrowsers)
{
    const nlohmann::json texts = webTexts();
    ASSERT_GT(texts["valid"].size(), 1000U);
    for (const auto& row : texts["valid"]) {
        const auto text = row[1].get<std::string>();
        const Result<CSSColor> reading = readCSSColor(text);
        ASSERT_TRUE(reading) << text << ": " << english(reading.error());
        const auto channels = srgbFrom(reading->value.space, reading->value.components);
        const double rounding = isRoundedToBytes(row[0], text) ? 0.5 / 255 : 0;
        for (std::size_t i = 0; i < channels.size(); ++i) {
            const auto expected = row[2 + i].get<double>();
            // The others' matrices for D50 have fewer digits.
            const double digits = 1e-4 * std::max(1.0, std::abs(expected));
            EXPECT_NEAR(channels[i], expected, rounding + digits) << text << ", channel " << i;
        }
        EXPECT_NEAR(reading->value.alpha, row[5].get<double>(), 1e-5) << text;
    }
}

TEST(WebPlatformTextsTest, WhatIsNoColourIsRefused)
{
    const nlohmann::json texts = webTexts();
    ASSERT_GT(texts["invalid"].size(), 500U);
    for (const auto& row : texts["invalid"])
        EXPECT_FALSE(readCSSColor(row[1].get<std::string>())) << row[1];
}

}  // namespace
}  // namespace vantorel
