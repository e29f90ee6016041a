#include "PickerPage.h"

#include "settings/SettingsFile.h"

namespace vantorel {
namespace {

class PageVisibilityTest : public PickerPage {
protected:
    PageVisibilityTest()
    {
        _panel.showPage(_page);
        _picker.viewSizeChanged(nullptr);
    }
    [[nodiscard]] std::u16string hexCode()
    {
        return dynamic_cast<HostTextField&>(control("_fullHexText")).stringValue();
    }
};

TEST_F(PageVisibilityTest, ThePageIsMadeOnceAndAtTheFirstRequest)
{
    EXPECT_EQ(_picker.provideNewView(true), _page);
    EXPECT_EQ(_picker.provideNewView(false), _page);
    QTXHexColorPicker other(0, _panel, _bundle);
    EXPECT_EQ(other.provideNewView(false), nullptr);
}

TEST_F(PageVisibilityTest, APageShowsWhatWasChosenWithoutAnEchoOfThePanel)
{
    _panel.changeColor(HostColor::blackColor());
    _panel.echoes = false;
    dynamic_cast<HostTextField&>(control("_redHexText")).sendStep(1, 0);
    EXPECT_EQ(_panel.log, "set ");
    EXPECT_EQ(hexCode(), u"#010000");
}

TEST_F(PageVisibilityTest, AHiddenPageCatchesUpWhenItAppears)
{
    _panel.changeColor(HostColor::blackColor());
    const std::u16string black = hexCode();
    _picker.pageDidDisappear();
    _panel.changeColor(HostColor::whiteColor());
    EXPECT_EQ(hexCode(), black);
    EXPECT_EQ(_picker.hexColorSpec().colorHexColorSpec(), HostColor::whiteColor());
    _picker.pageDidAppear();
    EXPECT_NE(hexCode(), black);
}

TEST_F(PageVisibilityTest, APageThatHasMissedNothingWritesNothing)
{
    _panel.changeColor(HostColor::blackColor());
    _picker.pageDidDisappear();
    auto& field = dynamic_cast<HostTextField&>(control("_fullHexText"));
    field.setStringValue(u"typing");
    _picker.pageDidAppear();
    EXPECT_EQ(hexCode(), u"typing");
}

TEST_F(PageVisibilityTest, AHiddenPageDoesNotFollowThePointer)
{
    auto& view = dynamic_cast<HeadlessCustomView&>(control("_hexColorsView"));
    EXPECT_TRUE(view.isTracking());
    _picker.hexColorsView().postMessage(u"message");
    _picker.pageDidDisappear();
    EXPECT_FALSE(view.isTracking());
    EXPECT_TRUE(_desktop.pendingTimers().empty());
    _picker.pageDidAppear();
    EXPECT_TRUE(view.isTracking());
}

TEST_F(PageVisibilityTest, ThePageTakesInSettingsOfOthersWhenItAppears)
{
    QTXHexSettings theirs;
    SettingsMerge merge;
    initializeDefaults(_desktop.files(), theirs, merge);
    theirs.setPickViewMode(PickViewMode::palette);
    theirs.setComponentDisplay(ComponentDisplay::codeSnippet);
    theirs.activeColorLists().push_back(u"SVG Keyword");
    writeDefaults(_desktop.files(), theirs, merge);
    const auto& mode = dynamic_cast<HostButton&>(control("paletteViewModeButton"));
    EXPECT_EQ(mode.state(), 0);

    _picker.pageDidDisappear();
    _picker.pageDidAppear();
    EXPECT_EQ(mode.state(), 1);
    EXPECT_FALSE(control("_objCCodeText").isParked());
    const auto& lists = dynamic_cast<HostPopUpButton&>(control("hexColorsListPopUp"));
    EXPECT_NE(lists.indexOfItemWithTitle(u"SVG Keyword"), HostPopUpButton::noItem);
}

}  // namespace
}  // namespace vantorel
