#include "stylesheets/StyleSheetReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {
namespace {

using Bytes = std::array<std::uint8_t, 4>;

StyleSheetReport reportOf(std::string_view text, DocumentLanguage language = DocumentLanguage::css)
{
    StyleSheetReport report;
    report.add(text, language);
    return report;
}

TEST(StyleSheetReportTest, ColoursAreCountedWithTheirVariables)
{
    const auto report = reportOf(
        ":root { --accent: #f80; --same: rgb(255 136 0); }\n"
        "a { color: var(--accent); border: 1px solid #FF8800 }\n"
        "b { color: rgb(255 136 0 / 50%); /* red */ }\n");
    const auto colors = report.colors();
    ASSERT_EQ(colors.size(), 2U);
    EXPECT_EQ(colors[0].bytes, (Bytes{255, 136, 0, 255}));
    EXPECT_EQ(colors[0].count, 4U);
    EXPECT_EQ(colors[0].first, (SheetPlace{0, 1}));
    EXPECT_THAT(colors[0].variables, testing::ElementsAre("--accent", "--same"));
    EXPECT_EQ(colors[1].bytes, (Bytes{255, 136, 0, 128}));
    EXPECT_EQ(colors[1].first, (SheetPlace{0, 3}));
    EXPECT_TRUE(colors[1].variables.empty());
}

TEST(StyleSheetReportTest, FilesAreCountedTogether)
{
    StyleSheetReport report;
    report.add("a { color: blue }", DocumentLanguage::css);
    report.add("$x: red;\n$y: 1px solid blue;", DocumentLanguage::scss);
    const auto colors = report.colors();
    ASSERT_EQ(colors.size(), 2U);
    EXPECT_EQ(colors[0].count, 2U) << "the most frequent first";
    EXPECT_TRUE(colors[0].variables.empty()) << "$y is more than the colour";
    EXPECT_EQ(colors[1].first, (SheetPlace{1, 1}));
    EXPECT_THAT(colors[1].variables, testing::ElementsAre("$x"));
}

TEST(StyleSheetReportTest, NearDoublesDifferByLessThanTwo)
{
    const auto report = reportOf(
        "a { color: #ff8000; fill: #ff8000; stroke: #ff8103; outline-color: #ff8a10;"
        " border-color: #ff80007f; background: #0000ff }");
    const auto colors = report.colors();
    const auto doubles = StyleSheetReport::nearDoubles(colors);
    ASSERT_EQ(doubles.size(), 1U) << "neither another opacity nor a larger difference counts";
    EXPECT_EQ(colors[doubles[0].first].bytes, (Bytes{255, 128, 0, 255}));
    EXPECT_EQ(colors[doubles[0].second].bytes, (Bytes{255, 129, 3, 255}));
    EXPECT_GT(doubles[0].difference, 0);
    EXPECT_LT(doubles[0].difference, 1);
}

TEST(StyleSheetReportTest, EveryNearDoubleIsFound)
{
    std::string text = "a { --x: ";
    for (int i = 0; i < 400; ++i) {
        constexpr std::array<std::string_view, 8> digits{"00", "02", "7c", "80",
                                                         "82", "c0", "fd", "ff"};
        const auto at = [&](int place) {
            return std::string(digits[static_cast<std::size_t>(place % 8)]);
        };
        text += "#" + at(i) + at(i / 8) + at(i / 64) + " ";
    }
    const auto colors = reportOf(text + "}").colors();
    const auto doubles = StyleSheetReport::nearDoubles(colors);
    EXPECT_GT(doubles.size(), 300U);
    // A list of two has no others to skip.
    std::size_t count = 0;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        for (std::size_t j = i + 1; j < colors.size(); ++j)
            count += StyleSheetReport::nearDoubles({colors[i], colors[j]}).size();
    }
    EXPECT_EQ(doubles.size(), count);
}

struct ContrastRow {
    const char* rule;
    /// In hundredths, truncated; 0 if the contrast is not low.
    int ratio;
};

class RuleContrastTest : public testing::TestWithParam<ContrastRow> {};

TEST_P(RuleContrastTest, IsThatOfTheTextOnItsBackground)
{
    const auto report = reportOf(GetParam().rule, DocumentLanguage::scss);
    const auto& low = report.lowContrasts();
    EXPECT_EQ(low.size(), GetParam().ratio == 0 ? 0U : 1U) << GetParam().rule;
    if (!low.empty()) {
        EXPECT_EQ(static_cast<int>(low[0].ratio * 100), GetParam().ratio) << GetParam().rule;
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, RuleContrastTest,
    testing::Values(
        ContrastRow{"a { color: #777; background: #fff }", 447},
        ContrastRow{"a { color: #767676; background: #fff }", 0},
        ContrastRow{"a { COLOR: #777; Background-Color: white }", 447},
        ContrastRow{"a { color: #777 } b { background: #fff }", 0},
        ContrastRow{"a { color: #777; b { background: #fff } }", 0},
        ContrastRow{"a { color: #777; background: #fff; color: black }", 0},
        ContrastRow{"a { background: black; color: #777; background-color: #fff }", 447},
        ContrastRow{"a { color: white; background: linear-gradient(black, #777, #ccc) }", 160},
        ContrastRow{"a { color: rgb(0 0 0 / 40%); background: white }", 284},
        ContrastRow{"a { color: color-mix(in srgb, black, white); background: #ccc }", 247},
        ContrastRow{"a { border-color: #fff; background: #fff }", 0},
        ContrastRow{"$c: #777; a { color: $c; background: #fff }", 447},
        ContrastRow{"a { color: var(--none); background: #fff }", 0}));

TEST(StyleSheetReportTest, APairIsOnTheLineOfItsText)
{
    const auto report =
        reportOf("a {\n background: white;\n}\nb {\n background: white;\n color: #999;\n}");
    ASSERT_EQ(report.lowContrasts().size(), 1U);
    EXPECT_EQ(report.lowContrasts()[0].place, (SheetPlace{0, 6}));
    EXPECT_EQ(report.lowContrasts()[0].background, HostColor::whiteColor());
}

}  // namespace
}  // namespace vantorel
