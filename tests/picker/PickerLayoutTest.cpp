#include "picker/PickerLayout.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

MainFaceInput mainInput(double width)
{
    MainFaceInput input;
    input.current = {{0, 36, 46, 22}, {0, 36, 46, 22},  {0, 36, 46, 22},
                     {0, 36, 99, 22}, {104, 8, 99, 24}, {0, 270, 99, 22}};
    input.reference = {10, 60, width - 20, 180};
    input.colorsListPopUp = {10, 8, 92, 24};
    input.fullHex = {10, 270, 78, 22};
    input.pageWidth = width;
    input.panelHeight = 332;
    return input;
}

TEST(PickerLayoutTest, ComponentsAreBelowTheirColumns)
{
    const auto frames = mainFaceLayout(mainInput(260));
    EXPECT_DOUBLE_EQ(frames.red.midX(), 10 + 240 * 2.5 / 15);
    EXPECT_DOUBLE_EQ(frames.green.midX(), 130);
    EXPECT_DOUBLE_EQ(frames.blue.midX(), 250 - 240 * 2.5 / 15);
    EXPECT_EQ(frames.snippet.x, -500);
}

TEST(PickerLayoutTest, TheSnippetReplacesTheComponents)
{
    auto input = mainInput(260);
    input.showsCodeSnippet = true;
    const auto frames = mainFaceLayout(input);
    EXPECT_EQ(frames.snippet, (HostRect{10, 36, 240, 22}));
    EXPECT_EQ(frames.red.x, -500);
    EXPECT_EQ(frames.blue.x, -500);
}

struct NameRow {
    double width;
    HostRect name;
};

void PrintTo(const NameRow& row, std::ostream* out)
{
    *out << row.width << " points";
}

class ColorNameTest : public testing::TestWithParam<NameRow> {};

TEST_P(ColorNameTest, FillsTheAvailableWidth)
{
    EXPECT_EQ(mainFaceLayout(mainInput(GetParam().width)).colorName, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Widths, ColorNameTest,
                         testing::Values(NameRow{420, {104, 8, 300, 24}},
                                         NameRow{419, {104, 8, 300, 24}},
                                         NameRow{260, {104, 8, 141, 24}},
                                         NameRow{170, {104, 8, 51, 24}},
                                         NameRow{169, {104, 832, 99, 24}}));

TEST(PickerLayoutTest, ANarrowPageHasNoRgbField)
{
    EXPECT_EQ(mainFaceLayout(mainInput(199)).rgbDecimal.x, -200);
    EXPECT_EQ(mainFaceLayout(mainInput(200)).rgbDecimal, (HostRect{104, 270, 76, 22}));
}

SettingsFaceFrames settingsFrames()
{
    SettingsFaceFrames frames;
    frames.doneButton = {0, 0, 60, 24};
    frames.poundSign = {0, 0, 62, 20};
    frames.entryForm = frames.componentDisplay = frames.codeSnippet =
        frames.dragType = {0, 0, 92, 22};
    frames.componentDisplayLabel = {0, 0, 37, 22};
    frames.codeSnippetLabel = frames.dragTypeLabel = {0, 0, 33, 18};
    frames.moreIndicator = frames.help = {0, 0, 20, 20};
    frames.versionLabel = {0, 0, 60, 14};
    return frames;
}

TEST(PickerLayoutTest, TallSettingsShowEveryRow)
{
    const auto f = settingsFaceLayout(settingsFrames(), {10, 60, 240, 186});
    EXPECT_EQ(f.doneButton, (HostRect{100, 70, 60, 24}));
    EXPECT_EQ(f.poundSign, (HostRect{30, 214, 62, 20}));
    EXPECT_EQ(f.entryForm, (HostRect{104, 213, 92, 22}));
    EXPECT_EQ(f.componentDisplay, (HostRect{59, 188, 92, 22}));
    EXPECT_EQ(f.codeSnippet, (HostRect{59, 162, 92, 22}));
    EXPECT_EQ(f.codeSnippetLabel.midY(), f.codeSnippet.midY());
    EXPECT_EQ(f.dragTypeLabel, (HostRect{24, 138, 33, 18}));
    EXPECT_EQ(f.dragType, (HostRect{59, 136, 92, 22}));
    EXPECT_EQ(f.moreIndicator.x, -500);
    EXPECT_EQ(f.versionLabel, (HostRect{182, 68, 60, 14}));
}

TEST(PickerLayoutTest, RowsAreHiddenFromTheBottomAndTwoOfThemTogether)
{
    const auto dragGone = settingsFaceLayout(settingsFrames(), {0, 0, 240, 146});
    EXPECT_EQ(dragGone.dragType.x, 500);
    EXPECT_EQ(dragGone.codeSnippet.x, 49);
    EXPECT_EQ(dragGone.moreIndicator.x, 30);
    EXPECT_EQ(dragGone.moreIndicator.midY(), dragGone.doneButton.midY());
    const auto allGone = settingsFaceLayout(settingsFrames(), {0, 0, 240, 106});
    EXPECT_EQ(allGone.codeSnippet.x, 500);
    EXPECT_EQ(allGone.componentDisplay.x, 500);
    EXPECT_EQ(allGone.componentDisplayLabel.x, 500);
    EXPECT_EQ(allGone.poundSign.x, 20);
}

TEST(PickerLayoutTest, WhatIsMovedOutOfSightIsParked)
{
    auto input = mainInput(260);
    auto frames = mainFaceLayout(input);
    EXPECT_TRUE(frames.snippetParked);
    EXPECT_FALSE(frames.componentsParked || frames.colorNameParked || frames.rgbDecimalParked);
    input.showsCodeSnippet = true;
    frames = mainFaceLayout(input);
    EXPECT_TRUE(frames.componentsParked);
    EXPECT_FALSE(frames.snippetParked);
    frames = mainFaceLayout(mainInput(169));
    EXPECT_TRUE(frames.colorNameParked && frames.rgbDecimalParked);

    const auto all = settingsFaceLayout(settingsFrames(), {0, 0, 240, 186});
    EXPECT_TRUE(all.moreIndicatorParked);
    EXPECT_FALSE(all.dragTypeParked || all.codeSnippetParked);
    const auto dragGone = settingsFaceLayout(settingsFrames(), {0, 0, 240, 146});
    EXPECT_TRUE(dragGone.dragTypeParked);
    EXPECT_FALSE(dragGone.codeSnippetParked || dragGone.moreIndicatorParked);
    EXPECT_TRUE(settingsFaceLayout(settingsFrames(), {0, 0, 240, 106}).codeSnippetParked);
}

TEST(PickerLayoutTest, OnlyTheMissingSidesGrow)
{
    EXPECT_EQ(growthTo({212, 220}, {200, 200}), (HostSize{12, 20}));
    EXPECT_EQ(growthTo({212, 220}, {400, 200}), (HostSize{0, 20}));
    EXPECT_EQ(growthTo({212, 220}, {400, 370}), (HostSize{0, 0}));
}

}  // namespace
}  // namespace vantorel
