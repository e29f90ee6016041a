#include "panel/PanelOptions.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtColors.h"
#include "panel/OnePanel.h"
#include "panel/widgets/ColorClipboard.h"

#include <gtest/gtest.h>

#include <QDir>

namespace vantorel {
namespace {

struct ColorRow {
    const char* text;
    std::optional<QColor> color;
};

class ColorOptionTest : public testing::TestWithParam<ColorRow> {};

/// The colour in 8 bits a channel.
std::optional<QColor> rgbaOf(const std::optional<HostColor>& color)
{
    return color ? std::optional(QColor::fromRgba(qColorFrom(*color).rgba())) : std::nullopt;
}

TEST_P(ColorOptionTest, AcceptsTheSameColoursAsEverythingElse)
{
    const auto line = readCommandLine({"p", "--color", GetParam().text});
    EXPECT_EQ(rgbaOf(line.options.color), GetParam().color);
    EXPECT_EQ(line.exitStatus.has_value(), !GetParam().color.has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ColorOptionTest,
    testing::Values(
        ColorRow{"#f80", QColor(255, 136, 0)}, ColorRow{"#ff8000", QColor(255, 128, 0)},
        ColorRow{"#ff800040", QColor(255, 128, 0, 64)}, ColorRow{"#f804", QColor(255, 136, 0, 68)},
        ColorRow{"ff8000", QColor(255, 128, 0)}, ColorRow{"= RGB(1, 2 3); ", QColor(1, 2, 3)},
        ColorRow{"navy", QColor(0, 0, 128)}, ColorRow{"hsl(120 100% 50%)", QColor(0, 255, 0)},
        ColorRow{"hsl(120 100% 50% / 20%)", QColor(0, 255, 0, 51)},
        ColorRow{"oklch(62.796% 0.25768 29.234)", QColor(255, 0, 0)},
        ColorRow{"#fff000fff000", std::nullopt}, ColorRow{"rgb(1 2 3 4)", std::nullopt},
        ColorRow{"", std::nullopt}, ColorRow{"nonsense", std::nullopt}));

TEST(PanelOptionsTest, AColourOutsideSRGBIsHeldAsItIs)
{
    for (const char* text : {"oklch(0.7 0.3 150)", "color(display-p3 0 1 0 / 0.5)"}) {
        const auto options = readCommandLine({"p", "--color", text}).options;
        ASSERT_TRUE(options.color) << text;
        EXPECT_TRUE(isOutsideSRGB(*options.color)) << text;
        EXPECT_EQ(*options.color, *colorFromText(text).color)
            << "as one that is typed in the field";

        // The running panel gets it as a text.
        const auto handedOver = colorFromText(*orderFrom(options, {}).color).color;
        ASSERT_TRUE(handedOver) << text;
        const auto given = *options.color->calibratedRGB();
        const auto got = *handedOver->calibratedRGB();
        constexpr double close = 1e-4;
        EXPECT_NEAR(got.red, given.red, close);
        EXPECT_NEAR(got.green, given.green, close);
        EXPECT_NEAR(got.blue, given.blue, close);
        EXPECT_NEAR(got.alpha, given.alpha, close);
    }
    EXPECT_EQ(orderFrom(readCommandLine({"p", "--color", "#FF8000"}).options, {}).color, "#ff8000");
}

TEST(PanelOptionsTest, AnInvalidColourIsExplained)
{
    EXPECT_EQ(readCommandLine({"p", "--color", "orang"}).message.toStdString(),
              "vantorel-panel: --color: \"orang\" is not a CSS colour name: write a colour such as "
              "\"#ff8000\", \"rgb(255 128 0)\" or \"orange\"\n");
}

TEST(PanelOptionsTest, AColourIsReadWithAndWithoutItsOption)
{
    const auto line = readCommandLine({"p", "#123456"});
    ASSERT_FALSE(line.exitStatus.has_value());
    EXPECT_EQ(rgbaOf(line.options.color), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(readCommandLine({"p", "orang"}).message.toStdString(),
              "vantorel-panel: \"orang\" is not a CSS colour name: write a colour such as "
              "\"#ff8000\", \"rgb(255 128 0)\" or \"orange\"\n");
}

TEST(PanelOptionsTest, EveryOptionIsRead)
{
    const auto line =
        readCommandLine({"p",        "--color", "#ff8000",       "--mode",   "wheel",
                         "--size",   "260x340", "--screenshot",  "f.png",    "--theme",
                         "dark",     "--face",  "settings",      "--plugin", "a",
                         "--plugin", "b",       "--print-color", "--data",   "."});
    ASSERT_FALSE(line.exitStatus.has_value());
    EXPECT_EQ(rgbaOf(line.options.color), QColor(255, 128, 0));
    EXPECT_EQ(line.options.mode, "wheel");
    EXPECT_EQ(line.options.size, QSize(260, 340));
    EXPECT_EQ(line.options.plugins, (QStringList{"a", "b"}));
    EXPECT_TRUE(line.options.settingsFace);
    EXPECT_TRUE(line.options.printColor);
    EXPECT_EQ(line.options.dataFolder, QDir::currentPath());
}

TEST(PanelOptionsTest, ChoosingIsNotPassedToARunningPanel)
{
    const auto line = readCommandLine({"p", "--choose", "--color", "red"});
    ASSERT_FALSE(line.exitStatus.has_value());
    EXPECT_TRUE(line.options.choice);
    EXPECT_EQ(line.options.step, PanelOrder::Step::show);
}

struct StepRow {
    QStringList arguments;
    PanelOrder::Step step;
    const char* form;
};

class StepTest : public testing::TestWithParam<StepRow> {};

TEST_P(StepTest, MatchesTheOption)
{
    const auto line =
        readCommandLine(QStringList{"p", "--new", "--color", "red"} + GetParam().arguments);
    ASSERT_FALSE(line.exitStatus.has_value());
    EXPECT_EQ(line.options.step, GetParam().step);
    EXPECT_EQ(line.options.copyForm, GetParam().form);
    EXPECT_TRUE(line.options.another);
    EXPECT_TRUE(line.options.forStartsOnly.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Lines, StepTest,
    testing::Values(StepRow{{}, PanelOrder::Step::show, ""},
                    StepRow{{"--pick"}, PanelOrder::Step::pick, ""},
                    StepRow{{"--pick-and-copy"}, PanelOrder::Step::pickAndCopy, ""},
                    StepRow{{"--copy"}, PanelOrder::Step::copy, ""},
                    StepRow{{"--copy-as", "HSL (CSS)"}, PanelOrder::Step::copy, "HSL (CSS)"}));

TEST(PanelOptionsTest, OptionsThatOnlyApplyAtStartAreListed)
{
    const auto line = readCommandLine({"p", "--print-color", "--size", "1x1", "--color", "red"});
    EXPECT_EQ(line.options.forStartsOnly, (QStringList{"--size", "--print-color"}));
}

class BadOptionTest : public testing::TestWithParam<QStringList> {};

TEST_P(BadOptionTest, IsExplained)
{
    const auto line = readCommandLine(QStringList{"p"} + GetParam());
    EXPECT_EQ(line.exitStatus, 2);
    EXPECT_TRUE(line.message.startsWith("vantorel-panel: ")) << line.message.toStdString();
    EXPECT_TRUE(line.message.endsWith("\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadOptionTest,
    testing::Values(
        QStringList{"--color", "x"}, QStringList{"--mode", "x"}, QStringList{"--size", "260"},
        QStringList{"--data", "/no/such"}, QStringList{"--theme", "x"}, QStringList{"--face", "x"},
        QStringList{"--pick", "--copy"}, QStringList{"--choose", "--pick"},
        QStringList{"--choose", "--screenshot", "f.png"}, QStringList{"--copy", "--copy-as", "x"},
        QStringList{"--pick", "--screenshot", "f.png"}, QStringList{"--service", "--pick"},
        QStringList{"--service", "--choose"}, QStringList{"--service", "--screenshot", "f.png"},
        QStringList{"--copy-as"}, QStringList{"--nothing"}, QStringList{"stray"},
        QStringList{"red", "blue"}, QStringList{"red", "--color", "red"}, QStringList{"--color"}));

TEST(PanelOptionsTest, HelpAndVersionExitSuccessfully)
{
    EXPECT_EQ(readCommandLine({"p", "--help"}).exitStatus, 0);
    EXPECT_TRUE(readCommandLine({"p", "--help"}).message.contains("--screenshot"));
    EXPECT_TRUE(readCommandLine({"p", "--help"})
                    .message.startsWith("Usage: vantorel-panel [OPTION...] [COLOR]\n"));
    EXPECT_EQ(readCommandLine({"p", "--version"}).message, "vantorel-panel " VANTOREL_VERSION "\n");
}

}  // namespace
}  // namespace vantorel
