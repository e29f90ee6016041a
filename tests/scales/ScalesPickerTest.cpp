#include "ScalesPageFixture.h"

namespace vantorel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class ScalesPickerTest : public ScalesPageTest {};

TEST_F(ScalesPickerTest, AClickTakesAColour)
{
    const std::u16string code = codeAt("scalesScaleRow1", 2);
    click("scalesScaleRow1", 2);
    EXPECT_EQ(panelCode(), code);
    picker->performAction("schemes", nullptr);
    const std::u16string complement = codeAt("scalesSchemesRow1", 1);
    click("scalesSchemesRow1", 1);
    EXPECT_EQ(panelCode(), complement);
    EXPECT_EQ(codeAt("scalesSchemesRow1", 0), complement) << "the schemes are those of the colour";
}

TEST_F(ScalesPickerTest, AReleaseElsewhereTakesNothing)
{
    const HostPoint at = placeOf("scalesScaleRow1", 2);
    panel.deliver({{HostEventType::leftMouseDown, at, 0},
                   {HostEventType::leftMouseUp, {at.x + 100, at.y}, 0}},
                  view("scalesScaleRow1"));
    EXPECT_EQ(panelCode(), u"#3b82f6");
}

TEST_F(ScalesPickerTest, ADragCarriesAColourOut)
{
    const HostColor color = strip("scalesScaleRow2").swatches()[3].color;
    const HostPoint at = placeOf("scalesScaleRow2", 3);
    panel.deliver({{HostEventType::leftMouseDown, at, 0},
                   {HostEventType::leftMouseDragged, {at.x + 2, at.y}, 0},
                   {HostEventType::leftMouseDragged, {at.x + 9, at.y}, 0}},
                  view("scalesScaleRow2"));
    const auto* drag = std::get_if<Dragged>(&desktop.journal().back());
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(drag->color, color);
    EXPECT_EQ(panelCode(), u"#3b82f6") << "a drag takes no colour";
}

TEST_F(ScalesPickerTest, CodesHaveTheFormOfTheSettings)
{
    desktop.files().createDirectory("/home/user/Vantorel");
    desktop.files().writeAtomically("/home/user/Vantorel/Settings.plist",
                                    "{EntryForm = Lowercase; UsePoundSign = No;}");
    picker->pageDidAppear();
    choose("scalesScaleCopy", {u"Tints", u"Hex codes"});
    EXPECT_THAT(copied(), StartsWith("3b82f6\n"));
    choose("scalesScaleCopy", {u"SCSS variables"});
    EXPECT_THAT(copied(), HasSubstr("$dodgerblue-500: #3b82f6;")) << "style sheets need the \"#\"";
    EXPECT_EQ(utf8FromUtf16(*view("scalesScaleRow1").accessibleDescription()),
              "500, 3b82f6, the colour itself");

    auto& end = control<HeadlessTextField>("scalesGradientEnd");
    picker->performAction("gradient", nullptr);
    EXPECT_EQ(end.stringValue(), u"b57a00");
    end.setStringValue(u"00ff80");
    end.sendAction();
    EXPECT_EQ(end.stringValue(), u"00ff80");
    EXPECT_TRUE(panel.reports().empty() ||
                panel.reports().back().find(u"not a colour") == std::u16string::npos);
}

TEST_F(ScalesPickerTest, KeysWalkAlongARow)
{
    const std::string row = "scalesScaleRow1";
    const auto spoken = [&] { return utf8FromUtf16(*view(row).accessibleDescription()); };
    EXPECT_EQ(spoken(), "500, #3B82F6, the colour itself") << "the keys begin at the colour";
    EXPECT_TRUE(press(row, HostKey::left));
    EXPECT_THAT(spoken(), StartsWith("400, #"));
    EXPECT_TRUE(press(row, HostKey::home));
    EXPECT_TRUE(press(row, HostKey::left)) << "the end of the row is not the end of the page";
    EXPECT_THAT(spoken(), StartsWith("50, #"));
    EXPECT_TRUE(press(row, HostKey::end));
    EXPECT_THAT(spoken(), StartsWith("950, #"));
    EXPECT_EQ(panelCode(), u"#3b82f6") << "walking takes no colour";
    const std::u16string code = codeAt(row, 10);
    EXPECT_TRUE(press(row, HostKey::pick));
    EXPECT_EQ(panelCode(), code);
    EXPECT_FALSE(press(row, HostKey::pageDown)) << "it shows another page";
    EXPECT_FALSE(view(row).content().keyOutline().elements().empty());
}

TEST_F(ScalesPickerTest, ATipNamesTheColourUnderThePointer)
{
    picker->pageDidAppear();
    EXPECT_TRUE(panel.acceptsMouseMovedEvents());
    auto& row = view("scalesScaleRow1");
    panel.deliver({{HostEventType::mouseMoved, placeOf("scalesScaleRow1", 5), 0}}, row);
    EXPECT_EQ(row.toolTip(), u"500: #3B82F6");
    panel.changeColor(rgbColor(1, 2, 3));
    EXPECT_FALSE(row.toolTip());
    picker->pageDidDisappear();
    EXPECT_FALSE(panel.acceptsMouseMovedEvents());
}

TEST_F(ScalesPickerTest, ARowIsCopiedInEveryForm)
{
    choose("scalesScaleCopy", {u"CSS custom properties"});
    EXPECT_THAT(copied(), StartsWith(":root {\n  --dodgerblue-50: #"));
    EXPECT_THAT(copied(), HasSubstr("--dodgerblue-500: #3b82f6;"));
    EXPECT_EQ(panel.reports().back(), u"Scale: CSS custom properties copied");
    choose("scalesScaleCopy", {u"SCSS variables"});
    EXPECT_THAT(copied(), HasSubstr("$dodgerblue-500: #3b82f6;"));
    choose("scalesScaleCopy", {u"Tailwind 4 @theme"});
    EXPECT_THAT(copied(), HasSubstr("--color-dodgerblue-500: #3b82f6;"));
    choose("scalesScaleCopy", {u"JSON design tokens"});
    EXPECT_THAT(copied(), HasSubstr("\"500\": {\"$value\""));
    choose("scalesScaleCopy", {u"Tints", u"Hex codes"});
    EXPECT_THAT(copied(), StartsWith("#3B82F6\n#"));
    choose("scalesScaleCopy", {u"Shades", u"CSS custom properties"});
    EXPECT_THAT(copied(), HasSubstr("--dodgerblue-shade-2: #"));
    choose("scalesSchemesCopy", {u"Triad", u"SCSS variables"});
    EXPECT_THAT(copied(), HasSubstr("$dodgerblue-triad-3: #"));
    choose("scalesGradientCopy", {u"SCSS variables"});
    EXPECT_THAT(copied(), StartsWith("$dodgerblue-gradient-1: #3b82f6;"));
}

TEST_F(ScalesPickerTest, ALineOfCodeIsCopiedForEachColour)
{
    choose("scalesScaleCopy", {u"Lines of code"});
    HostMenu menu = control<HostPopUpButton>("scalesScaleCopy").menu();
    const auto item = std::ranges::find(menu, u"Lines of code", &HostMenuItem::title);
    ASSERT_NE(item, menu.end());
    const HostMenu snippets = item->submenu();
    ASSERT_GT(snippets.size(), 1U);
    snippets.front().action(snippets.front());
    EXPECT_EQ(std::ranges::count(copied(), '\n'), 11);
}

TEST_F(ScalesPickerTest, SteppingThroughTheMenuCopiesNothing)
{
    EXPECT_EQ(control<HostPopUpButton>("scalesScaleCopy").titleOfSelectedItem(), u"Copy all");
    choose("scalesScaleCopy", {u"Hex codes"});
    EXPECT_EQ(control<HostPopUpButton>("scalesScaleCopy").titleOfSelectedItem(), u"Copy all");
}

TEST_F(ScalesPickerTest, ARowIsKeptAsAListUnderAFreeName)
{
    choose("scalesScaleCopy", {u"Keep as a colour list"});
    choose("scalesScaleCopy", {u"Keep as a colour list"});
    const auto list = desktop.colorLists().colorListNamed(u"Scale dodgerblue");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->allKeys().size(), 11U);
    EXPECT_EQ(list->colorWithKey(u"dodgerblue 500"), rgbColor(59, 130, 246));
    EXPECT_NE(desktop.colorLists().colorListNamed(u"Scale dodgerblue 2"), nullptr);
    EXPECT_THAT(lastReport(), HasSubstr("\"Scale dodgerblue 2\""));
}

TEST_F(ScalesPickerTest, OneSectionOrAllAreShown)
{
    const auto isShown = [&](const char* name) { return !view(name).isParked(); };
    EXPECT_TRUE(isShown("scalesScale"));
    EXPECT_FALSE(isShown("scalesVision"));
    control<HeadlessButton>("scalesSection5").click();
    EXPECT_FALSE(isShown("scalesScale"));
    EXPECT_TRUE(isShown("scalesVision"));
    control<HeadlessButton>("scalesSection5").click();
    EXPECT_EQ(control<HeadlessButton>("scalesSection5").state(), 1) << "it stays chosen";
    panel.resize({640, 700});
    EXPECT_TRUE(isShown("scalesScale"));
    EXPECT_TRUE(isShown("scalesVision"));
    EXPECT_TRUE(view("scalesSections").isParked());
    EXPECT_FALSE(picker->performAction("nothing", nullptr));
}

TEST_F(ScalesPickerTest, APopUpChoosesWhereSegmentsHaveNoRoom)
{
    panel.resize({230, 324});
    auto& popUp = control<HostPopUpButton>("scalesSectionPopUp");
    ASSERT_NE(popUp.isParked(), view("scalesSections").isParked());
    popUp.selectItemAtIndex(3);
    popUp.sendAction();
    EXPECT_FALSE(view("scalesContrast").isParked());
}

TEST_F(ScalesPickerTest, WhatIsHiddenFollowsWhenItIsShown)
{
    panel.changeColor(rgbColor(255, 0, 0));
    picker->performAction("schemes", nullptr);
    EXPECT_EQ(codeAt("scalesSchemesRow1", 0), u"#ff0000");
}

TEST_F(ScalesPickerTest, AColourOutsideSRGBIsHeld)
{
    EXPECT_TRUE(picker->takesWideGamut());
    const HostColor wide = HostColor::colorWithCalibratedRed(-0.5, 1.02, -0.3, 1);
    panel.changeColor(wide);
    const Swatches& scale = strip("scalesScaleRow1").swatches();
    const auto own = std::ranges::find(scale, true, &Swatch::isOwn);
    ASSERT_NE(own, scale.end());
    EXPECT_EQ(own->color, wide);
    choose("scalesScaleCopy", {u"Hex codes"});
    EXPECT_EQ(copied().size(), 11U * 8);
}

TEST_F(ScalesPickerTest, EveryViewPaintsItselfAtAnySize)
{
    for (const HostSize size : {HostSize{300, 324}, {230, 272}, {640, 560}, {340, 900}, {10, 10}}) {
        panel.resize(size);
        for (const char* section : {"scale", "schemes", "gradient", "contrast", "vision"}) {
            picker->performAction(section, nullptr);
            std::string name = std::string("scales") + section + "Row1";
            name[6] = static_cast<char>(name[6] - 'a' + 'A');
            const RecordingCanvas canvas = view(name).draw();
            if (size.width < 100) continue;
            EXPECT_TRUE(std::ranges::any_of(canvas.operations(),
                                            [](const PaintOperation& operation) {
                                                return std::holds_alternative<PixelsOperation>(
                                                    operation);
                                            }))
                << name << " at " << size.width;
        }
    }
}

TEST_F(ScalesPickerTest, NarrowRowsBreak)
{
    const SwatchStrip::Options joined{.isJoined = true};
    EXPECT_EQ(swatchRows(280, 11, joined), 1U);
    EXPECT_EQ(swatchRows(240, 11, joined), 2U);
    EXPECT_EQ(swatchRows(240, 11, {.isJoined = true, .leastWidth = 20}), 1U);
    const auto places = swatchPlaces({0, 0, 240, 60}, 11, joined, 0);
    EXPECT_EQ(places[0].width, 40);
    EXPECT_EQ(places[0].maxY(), 60);
    EXPECT_EQ(places[6].width, 48) << "the shorter row fills the width, too";
    EXPECT_LT(places[6].maxY(), places[0].y);
    EXPECT_EQ(swatchPlaces({0, 0, 0, 0}, 3, {}, 0).size(), 3U);
}

}  // namespace
}  // namespace vantorel
