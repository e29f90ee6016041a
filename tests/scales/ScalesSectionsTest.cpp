#include "ScalesPageFixture.h"

#include "csscolor/Contrast.h"
#include "scales/ContrastLines.h"
#include "scales/ContrastMatrix.h"
#include "text/Decimals.h"

#include <cmath>

namespace vantorel {
namespace {

using testing::HasSubstr;

class GradientSectionTest : public ScalesPageTest {
protected:
    GradientSectionTest() { picker->performAction("gradient", nullptr); }

    void enterEnd(const std::u16string& text)
    {
        auto& field = control<HeadlessTextField>("scalesGradientEnd");
        field.setStringValue(text);
        field.sendAction();
    }
    [[nodiscard]] std::u16string end()
    {
        return control<HeadlessTextField>("scalesGradientEnd").stringValue();
    }
    void enterSteps(const std::u16string& text)
    {
        auto& field = control<HeadlessTextField>("scalesGradientSteps");
        field.setStringValue(text);
        field.sendAction();
    }
    [[nodiscard]] const Swatches& gradient() { return strip("scalesGradientRow1").swatches(); }
};

TEST_F(GradientSectionTest, TheLastColourIsTypedInAnyForm)
{
    EXPECT_EQ(end(), u"#B57A00") << "the complement";
    enterEnd(u"rgb(255 255 0)");
    EXPECT_EQ(end(), u"#FFFF00");
    EXPECT_EQ(codeAt("scalesGradientRow1", 6), u"#ffff00");
    enterEnd(u"no colour");
    EXPECT_EQ(end(), u"#FFFF00");
    EXPECT_THAT(lastReport(), HasSubstr("not a colour"));
    enterEnd(u" ");
    EXPECT_EQ(end(), u"#B57A00");
    EXPECT_EQ(panelCode(), u"#3b82f6");
}

TEST_F(GradientSectionTest, LeavingTheFieldKeepsTheComplement)
{
    control<HeadlessTextField>("scalesGradientEnd").sendAction();
    panel.changeColor(rgbColor(255, 0, 0));
    EXPECT_NE(end(), u"#B57A00") << "it is still the complement of the colour";
}

TEST_F(GradientSectionTest, StepsAndSpaceAreChosen)
{
    enterSteps(u"3");
    EXPECT_EQ(gradient().size(), 3U);
    const std::u16string oklch = codeAt("scalesGradientRow1", 1);
    auto& space = control<HostPopUpButton>("scalesGradientSpace");
    EXPECT_EQ(space.titleOfSelectedItem(), u"OKLCH, shorter hue");
    space.selectItemWithTitle(u"sRGB");
    space.sendAction();
    EXPECT_NE(codeAt("scalesGradientRow1", 1), oklch);
    enterSteps(u"99");
    EXPECT_EQ(gradient().size(), 24U);
}

TEST_F(GradientSectionTest, TheEndsAreSwapped)
{
    enterEnd(u"#ffff00");
    control<HeadlessButton>("scalesGradientSwap").click();
    EXPECT_EQ(panelCode(), u"#ffff00");
    EXPECT_EQ(end(), u"#3B82F6");
    EXPECT_EQ(codeAt("scalesGradientRow1", 0), u"#ffff00");
}

TEST_F(GradientSectionTest, ItIsRemembered)
{
    enterEnd(u"#ffff00");
    enterSteps(u"5");
    auto& space = control<HostPopUpButton>("scalesGradientSpace");
    space.selectItemWithTitle(u"Oklab");
    space.sendAction();
    start();
    EXPECT_FALSE(view("scalesGradient").isParked()) << "the section, too";
    EXPECT_EQ(end(), u"#FFFF00");
    EXPECT_EQ(gradient().size(), 5U);
    EXPECT_EQ(control<HostPopUpButton>("scalesGradientSpace").titleOfSelectedItem(), u"Oklab");
}

TEST_F(GradientSectionTest, ManyStepsAreWrittenOnce)
{
    const std::string file =
        *desktop.files().applicationSupportDirectory() + "/Vantorel/Scales.plist";
    enterSteps(u"5");
    enterSteps(u"6");
    EXPECT_FALSE(desktop.files().contentsAtPath(file)) << "not at each step";
    EXPECT_EQ(desktop.advance(2, [] {}), 1);
    const auto written = desktop.files().contentsAtPath(file);
    ASSERT_TRUE(written);
    EXPECT_THAT(*written, HasSubstr("GradientSteps = 6"));
}

TEST_F(GradientSectionTest, ADamagedMemoryCountsAsNone)
{
    for (const char* text :
         {"", "{", "(1)", "{ Section = (scale); GradientSteps = x; GradientEnd = y; }",
          "{ Section = other; GradientSpace = cmyk; GradientSteps = 99999999999999999999; }"}) {
        leave();
        ASSERT_TRUE(desktop.files().writeAtomically(
            *desktop.files().applicationSupportDirectory() + "/Vantorel/Scales.plist", text));
        start();
        EXPECT_FALSE(view("scalesScale").isParked()) << text;
        picker->performAction("gradient", nullptr);
        EXPECT_EQ(gradient().size(), 7U) << text;
    }
}

class ContrastSectionTest : public ScalesPageTest {
protected:
    ContrastSectionTest() { picker->performAction("contrast", nullptr); }

    [[nodiscard]] std::u16string table()
    {
        return *view("scalesContrastLines").accessibleDescription();
    }
};

TEST_F(ContrastSectionTest, TheTableSaysWhatPasses)
{
    EXPECT_EQ(table(), u"White 3.67 AA large; Black 5.70 AA");
    panel.changeOtherColor(rgbColor(15, 23, 42), false);
    EXPECT_EQ(table(), u"Background 4.85 AA; White 3.67 AA large; Black 5.70 AA");
    panel.changeColor(rgbColor(20, 20, 40));
    EXPECT_TRUE(table().ends_with(u"fails"));
}

TEST_F(ContrastSectionTest, ALongTitleEndsBeforeTheRatio)
{
    ContrastLines lines(panel, "lines", u"Contrast");
    lines.view().setFrame({0, 0, 210, 24});
    lines.show({{.title = u"Hintergrund"}});
    const RecordingCanvas canvas = view("lines").draw();
    std::vector<TextOperation> texts;
    for (const PaintOperation& operation : canvas.operations()) {
        if (const auto* text = std::get_if<TextOperation>(&operation)) texts.push_back(*text);
    }
    ASSERT_EQ(texts.size(), 4U) << "sample, verdict, ratio and title";
    const TextOperation& title = texts[3];
    EXPECT_EQ(title.text.string, u"Hintergrund");
    EXPECT_LT(title.at.x + desktop.sizeOfText(title.text).width, texts[2].at.x);
}

TEST_F(ContrastSectionTest, AClickMendsTheContrast)
{
    panel.changeOtherColor(HostColor::whiteColor(), false);
    EXPECT_EQ(strip("scalesContrastRow1").swatches().at(0).label,
              u"AA " + *hexText(strip("scalesContrastRow1").swatches().at(0).color, HexForm()));
    click("scalesContrastRow1", 0);
    EXPECT_GE(*contrastRatio(*panel.color(), HostColor::whiteColor()), 4.5);
    EXPECT_LT(*contrastRatio(*panel.color(), HostColor::whiteColor()), 4.7);
    EXPECT_EQ(strip("scalesContrastRow1").swatches().at(0).label, u"AA passes");
    click("scalesContrastRow1", 1);
    EXPECT_GE(*contrastRatio(*panel.color(), HostColor::whiteColor()), 7);
}

TEST_F(ContrastSectionTest, TheBackgroundIsMendedWhenItIsEdited)
{
    panel.changeOtherColor(rgbColor(255, 255, 0, 0.9), true);
    press("scalesContrastRow1", HostKey::end);
    press("scalesContrastRow1", HostKey::pick);
    EXPECT_GE(*contrastRatio(rgbColor(255, 255, 0, 0.9), *panel.color()), 7);
}

TEST_F(ContrastSectionTest, WhatCannotPassIsNotOffered)
{
    panel.changeOtherColor(rgbColor(119, 119, 119), false);
    const Swatches& nearest = strip("scalesContrastRow1").swatches();
    ASSERT_EQ(nearest.size(), 1U) << "no colour has 7:1 on this grey";
    panel.changeOtherColor(HostColor::patternColor(), false);
    EXPECT_EQ(table(), u"White 3.67 AA large; Black 5.70 AA");
    panel.changeColor(rgbColor(255, 255, 255, 0.05));
    EXPECT_TRUE(strip("scalesContrastRow1").swatches().empty());
    EXPECT_FALSE(press("scalesContrastRow1", HostKey::pick));
    EXPECT_EQ(view("scalesContrastRow1").accessibleDescription(), u"no lightness is enough");
}

TEST_F(ContrastSectionTest, TheScaleSaysWhatPassesOnTheBackground)
{
    panel.changeOtherColor(HostColor::whiteColor(), false);
    const Swatches& scale = strip("scalesContrastRow2").swatches();
    EXPECT_EQ(scale.front().label, u"\u2013");
    EXPECT_EQ(scale[5].label, u"3:1");
    EXPECT_EQ(scale.back().label, u"AAA");
}

TEST_F(ContrastSectionTest, TheScaleIsComparedWithItself)
{
    const auto& matrix = dynamic_cast<ContrastMatrix&>(view("scalesContrastMatrix").content());
    EXPECT_TRUE(matrix.view().isParked());
    control<HostButton>("scalesContrastView2").sendAction();
    ASSERT_FALSE(matrix.view().isParked());
    EXPECT_TRUE(view("scalesContrastRow1").isParked());
    EXPECT_TRUE(view("scalesContrastLines").isParked());

    const Swatches scale = strip("scalesContrastRow2").swatches();
    ASSERT_EQ(scale.size(), 11U);
    for (std::size_t ground = 0; ground < scale.size(); ++ground) {
        for (std::size_t text = 0; text < scale.size(); ++text) {
            EXPECT_DOUBLE_EQ(matrix.ratioOf({text, ground}),
                             *contrastRatio(mappedIntoSRGB(scale[text].color),
                                            mappedIntoSRGB(scale[ground].color)));
            const HostRect place = matrix.placeOf({text, ground});
            EXPECT_TRUE(matrix.view().bounds().contains({place.x, place.y}));
            EXPECT_TRUE(matrix.view().bounds().contains({place.maxX(), place.maxY()}));
            EXPECT_GE(place.height, 14) << "the marks have room";
        }
    }
    control<HostButton>("scalesContrastView1").sendAction();
    EXPECT_TRUE(matrix.view().isParked());
    EXPECT_FALSE(view("scalesContrastRow1").isParked());
}

TEST_F(ContrastSectionTest, TheKeysWalkThroughTheTableOfTheScale)
{
    control<HostButton>("scalesContrastView2").sendAction();
    const auto said = [&] { return *view("scalesContrastMatrix").accessibleDescription(); };
    EXPECT_EQ(said(), u"Text 50, Background 50: 1.00 fails");
    press("scalesContrastMatrix", HostKey::right);
    press("scalesContrastMatrix", HostKey::pageDown);
    EXPECT_TRUE(said().starts_with(u"Text 100, Background 950: ")) << utf8FromUtf16(said());
    EXPECT_TRUE(said().ends_with(u" AAA")) << utf8FromUtf16(said());
    press("scalesContrastMatrix", HostKey::up);
    press("scalesContrastMatrix", HostKey::end);
    EXPECT_TRUE(said().starts_with(u"Text 950, Background 900: ")) << utf8FromUtf16(said());
    press("scalesContrastMatrix", HostKey::right);
    press("scalesContrastMatrix", HostKey::left);
    press("scalesContrastMatrix", HostKey::pageUp);
    EXPECT_TRUE(said().starts_with(u"Text 900, Background 50: ")) << utf8FromUtf16(said());
    const std::u16string wanted = codeAt("scalesContrastRow2", 9);
    press("scalesContrastMatrix", HostKey::pick);
    EXPECT_EQ(panelCode(), wanted) << "the colour of the text";
}

TEST_F(ContrastSectionTest, AClickInTheTableTakesTheColourOfTheText)
{
    control<HostButton>("scalesContrastView2").sendAction();
    const auto& matrix = dynamic_cast<ContrastMatrix&>(view("scalesContrastMatrix").content());
    const std::u16string wanted = codeAt("scalesContrastRow2", 7);
    const HostRect place = matrix.placeOf({7, 2});
    const HostPoint at{place.midX(), place.midY()};
    panel.deliver({{HostEventType::leftMouseDown, at, 0}, {HostEventType::leftMouseUp, at, 0}},
                  view("scalesContrastMatrix"));
    EXPECT_EQ(panelCode(), wanted);
}

/// The table of the colours of a list.
class ListedContrastTest : public ContrastSectionTest {
protected:
    void keepList(const std::u16string& name, int colors)
    {
        const auto list = std::make_shared<HostColorList>(name);
        for (int i = 0; i < colors; ++i)
            list->setColor(rgbColor(i, 0, 255 - i), name + u" " + decimalText(i));
        ASSERT_TRUE(desktop.colorLists().writeColorList(list));
    }
    void showLists() { control<HostButton>("scalesContrastView3").sendAction(); }
    /// As a user does who opens the menu first.
    void chooseList(const std::u16string& name)
    {
        auto& lists = control<HostPopUpButton>("scalesContrastList");
        lists.sendWillPopUp();
        ASSERT_NE(lists.indexOfItemWithTitle(name), HostPopUpButton::noItem);
        lists.selectItemWithTitle(name);
        lists.sendAction();
    }
    [[nodiscard]] std::optional<std::u16string> chosen()
    {
        return control<HostPopUpButton>("scalesContrastList").titleOfSelectedItem();
    }
    [[nodiscard]] std::u16string count()
    {
        return control<HeadlessTextField>("scalesContrastListCount").stringValue();
    }
    [[nodiscard]] ContrastMatrix& matrix()
    {
        return dynamic_cast<ContrastMatrix&>(view("scalesContrastMatrix").content());
    }
    [[nodiscard]] std::u16string said()
    {
        return *view("scalesContrastMatrix").accessibleDescription();
    }
};

TEST_F(ListedContrastTest, TheColoursOfAListAreComparedWithEachOther)
{
    keepList(u"Brand", 3);
    keepList(u"Ground", 2);
    showLists();
    EXPECT_FALSE(matrix().view().isParked());
    EXPECT_TRUE(view("scalesContrastLines").isParked());
    chooseList(u"Ground");
    EXPECT_EQ(count(), u"2");
    EXPECT_EQ(said(), u"Text Ground 0, Background Ground 0: 1.00 fails");
    chooseList(u"Brand");
    EXPECT_EQ(count(), u"3");
    EXPECT_DOUBLE_EQ(matrix().ratioOf({2, 1}),
                     *contrastRatio(rgbColor(2, 0, 253), rgbColor(1, 0, 254)));
    const HostRect place = matrix().placeOf({2, 1});
    const HostPoint at{place.midX(), place.midY()};
    panel.deliver({{HostEventType::leftMouseDown, at, 0}, {HostEventType::leftMouseUp, at, 0}},
                  view("scalesContrastMatrix"));
    EXPECT_EQ(panelCode(), u"#0200fd");
    control<HostButton>("scalesContrastView2").sendAction();
    EXPECT_TRUE(control<HostPopUpButton>("scalesContrastList").isParked());
    EXPECT_TRUE(said().starts_with(u"Text 200, ")) << utf8FromUtf16(said());
}

TEST_F(ListedContrastTest, AsManyColoursAreShownAsHaveRoom)
{
    keepList(u"Long", 90);
    showLists();
    chooseList(u"Long");
    const std::size_t shown = matrix().capacity();
    EXPECT_GE(shown, 7U);
    EXPECT_LT(shown, 15U);
    EXPECT_EQ(count(), decimalText(shown) + u" / 90");
    const HostRect last = matrix().placeOf({shown - 1, shown - 1});
    EXPECT_GE(last.width, 18);
    EXPECT_GE(last.height, 14);
}

TEST_F(ListedContrastTest, AHundredColoursAreEnough)
{
    keepList(u"Endless", 250);
    showLists();
    chooseList(u"Endless");
    EXPECT_TRUE(count().ends_with(u" / 100+")) << utf8FromUtf16(count());
}

TEST_F(ListedContrastTest, AColourThatChangesInTheListIsShown)
{
    keepList(u"Brand", 3);
    showLists();
    chooseList(u"Brand");
    keepList(u"Brand", 7);
    picker->pageDidAppear();
    EXPECT_EQ(count(), u"7") << "the table has grown";
}

TEST_F(ListedContrastTest, TheFirstListIsShownWhenItIsMade)
{
    showLists();
    EXPECT_TRUE(count().starts_with(u"No colour lists")) << utf8FromUtf16(count());
    EXPECT_TRUE(control<HostPopUpButton>("scalesContrastList").isParked());
    keepList(u"Brand", 3);
    picker->pageDidAppear();
    EXPECT_EQ(count(), u"3");
    EXPECT_EQ(chosen(), u"Brand");
    EXPECT_FALSE(control<HostPopUpButton>("scalesContrastList").isParked());
}

TEST_F(ListedContrastTest, ThePageRemembersTheList)
{
    keepList(u"Brand", 3);
    keepList(u"Ground", 2);
    showLists();
    chooseList(u"Ground");
    start();
    picker->performAction("contrast", nullptr);
    showLists();
    EXPECT_EQ(chosen(), u"Ground");
    EXPECT_EQ(count(), u"2");
}

TEST_F(ListedContrastTest, TheTipOfAHeadingIsTheColoursName)
{
    keepList(u"Brand", 3);
    showLists();
    chooseList(u"Brand");
    const HostRect first = matrix().placeOf({1, 0});
    matrix().mouseMoved({HostEventType::mouseMoved, {first.midX(), first.maxY() + 10}, 0});
    EXPECT_EQ(matrix().view().toolTip(), u"Brand 1");
}

TEST_F(ContrastSectionTest, RatiosAreRoundedDown)
{
    EXPECT_EQ(ratioText(desktop, 4.4999), u"4.49");
    EXPECT_EQ(ratioText(desktop, 4.5), u"4.50");
    EXPECT_EQ(ratioText(desktop, 21), u"21.00");
}

class VisionSectionTest : public ScalesPageTest {};

TEST_F(VisionSectionTest, TheScaleIsShownAsItIsSeen)
{
    picker->performAction("vision", nullptr);
    EXPECT_EQ(codeAt("scalesVisionRow1", 5), u"#3b82f6");
    for (const char* row : {"scalesVisionRow2", "scalesVisionRow3", "scalesVisionRow4"})
        EXPECT_NE(codeAt(row, 5), u"#3b82f6") << row;
    const std::u16string grey = codeAt("scalesVisionRow5", 5);
    EXPECT_EQ(grey.substr(1, 2), grey.substr(3, 2));
}

}  // namespace
}  // namespace vantorel
