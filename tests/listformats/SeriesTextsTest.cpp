#include "listformats/SeriesTexts.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace vantorel {
namespace {

ColorSeries twoReds()
{
    return {"tomato",
            {{"50", HostColor::colorWithCalibratedRed(1, 240 / 255.0, 238 / 255.0, 1)},
             {"500", HostColor::colorWithCalibratedRed(1, 99 / 255.0, 71 / 255.0, 0.5)}}};
}

TEST(SeriesTextsTest, CustomPropertiesAreInARule)
{
    EXPECT_EQ(customPropertiesText(twoReds()),
              ":root {\n  --tomato-50: #fff0ee;\n  --tomato-500: #ff634780;\n}\n");
}

TEST(SeriesTextsTest, VariablesOfSCSS)
{
    EXPECT_EQ(scssVariablesText(twoReds()), "$tomato-50: #fff0ee;\n$tomato-500: #ff634780;\n");
}

TEST(SeriesTextsTest, ThemeVariablesOfTailwind)
{
    EXPECT_EQ(tailwindThemeText(twoReds()),
              "@theme {\n  --color-tomato-50: #fff0ee;\n  --color-tomato-500: #ff634780;\n}\n");
}

TEST(SeriesTextsTest, HexCodesAreOneALine)
{
    EXPECT_EQ(hexCodesText(twoReds(), {}), "#FFF0EE\n#FF634780\n");
    EXPECT_EQ(hexCodesText(twoReds(), {EntryForm::lowercase, false}), "fff0ee\nff634780\n");
    EXPECT_EQ(hexCodesText({"none", {}}, {}), "");
}

TEST(SeriesTextsTest, TokensAreAGroupOfColours)
{
    const auto json = nlohmann::json::parse(designTokensText(twoReds()));
    ASSERT_EQ(json.size(), 1U);
    const auto& group = json.at("tomato");
    EXPECT_EQ(group.at("$type"), "color");
    EXPECT_EQ(group.size(), 3U);
    const auto& value = group.at("500").at("$value");
    EXPECT_EQ(value.at("colorSpace"), "srgb");
    EXPECT_EQ(value.at("hex"), "#ff6347") << "the code has six digits; the alpha is beside it";
    EXPECT_EQ(value.at("alpha"), 0.5);
    EXPECT_EQ(value.at("components").at(0), 1);
    EXPECT_NEAR(value.at("components").at(1).get<double>(), 99 / 255.0, 5e-5);
    EXPECT_TRUE(nlohmann::json::parse(designTokensText({"none", {}})).at("none").is_object());
}

TEST(SeriesTextsTest, ColoursOutsideSRGBAreMapped)
{
    const ColorSeries wide{"lime", {{"", HostColor::colorWithCalibratedRed(-0.5, 1.02, -0.3, 1)}}};
    const std::string text = scssVariablesText(wide);
    EXPECT_EQ(text.substr(0, 7), "$lime: ");
    EXPECT_NE(text, "$lime: #00ff00;\n") << "clipping would change the hue";
    EXPECT_EQ(text.size(), 16U);
    EXPECT_EQ(nlohmann::json::parse(designTokensText(wide)).at("lime").size(), 2U);
}

}  // namespace
}  // namespace vantorel
