#include "PickerPage.h"
#include "settings/SettingsFile.h"
#include "text/Unicode.h"

#include <utility>

namespace vantorel {
namespace {

/// The actions of the page's controls, while it is in use and while it writes to them.
class SettingsActionsTest : public PickerPage {
protected:
    SettingsActionsTest()
    {
        auto list = std::make_shared<HostColorList>(u"SVG Keyword");
        list->setColor(HostColor::colorWithCalibratedRed(0, 0, 128 / 255.0, 1), u"navy");
        list->setColor(HostColor::blackColor(), u"black");
        _desktop.colorLists().install(std::move(list));
        _panel.showPage(_page);
        forgetStore();
    }

    HostPopUpButton& popUp(const std::string& name)
    {
        return dynamic_cast<HostPopUpButton&>(control(name));
    }
    void choose(const std::string& name, const std::u16string& title)
    {
        popUp(name).selectItemWithTitle(title);
        popUp(name).sendAction();
    }
    void forgetStore() { _stored = storedText(); }
    /// Whether the settings file has changed since the last call.
    bool wasStored() { return std::exchange(_stored, storedText()) != _stored; }
    /// What the fields and settings of the page are, in one text.
    [[nodiscard]] std::string stateOfPage()
    {
        return settingsData(_picker.hexSettings()) +
               utf8FromUtf16(_picker.hexColorSpec().description()) + storedText();
    }

private:
    [[nodiscard]] std::string storedText()
    {
        return _desktop.files()
            .contentsAtPath(hexColorPickerDefaultsFileName(_desktop.files()).value())
            .value_or("");
    }

    std::string _stored;
};

TEST_F(SettingsActionsTest, RingsAreCountedBetweenFourAndSeventeen)
{
    for (std::int64_t rings = 9; rings <= 17; ++rings) {
        _picker.performAction("increaseCubeRingsAction", nullptr);
        EXPECT_EQ(_picker.hexSettings().nColorCubeRings(), rings);
        EXPECT_TRUE(wasStored());
    }
    _picker.performAction("increaseCubeRingsAction", nullptr);
    EXPECT_EQ(_picker.hexSettings().nColorCubeRings(), 17);
    for (std::int64_t rings = 16; rings >= 4; --rings) {
        _picker.performAction("decreaseCubeRingsAction", nullptr);
        EXPECT_EQ(_picker.hexSettings().nColorCubeRings(), rings);
        EXPECT_TRUE(wasStored());
    }
    _picker.performAction("decreaseCubeRingsAction", nullptr);
    EXPECT_EQ(_picker.hexSettings().nColorCubeRings(), 4);
    EXPECT_FALSE(wasStored());
}

TEST_F(SettingsActionsTest, EachChoiceIsTakenShownAndStored)
{
    auto& red = dynamic_cast<HeadlessTextField&>(control("_redHexText"));
    auto& full = dynamic_cast<HeadlessTextField&>(control("_fullHexText"));
    auto& snippet = dynamic_cast<HeadlessTextField&>(control("_objCCodeText"));
    _panel.changeColor(HostColor::whiteColor());
    choose("entryFormPopUp", u"Lowercase");
    EXPECT_EQ(full.stringValue(), u"#ffffff");
    EXPECT_TRUE(wasStored());
    auto& pound = dynamic_cast<HeadlessButton&>(control("poundSignCheckbox"));
    pound.click();
    EXPECT_EQ(full.stringValue(), u"ffffff");
    EXPECT_TRUE(wasStored());
    pound.click();
    EXPECT_EQ(full.stringValue(), u"#ffffff");
    EXPECT_TRUE(wasStored());
    control("_hexPickerView").setNeedsDisplay(false);
    choose("componentDisplayPopUp", u"Integer");
    EXPECT_TRUE(control("_hexPickerView").needsDisplay());
    EXPECT_EQ(red.stringValue(), u"255");
    EXPECT_TRUE(wasStored());
    choose("componentDisplayPopUp", u"Code Snippet");
    EXPECT_FALSE(snippet.isParked());
    EXPECT_TRUE(red.isParked());
    EXPECT_TRUE(wasStored());
    choose("cCodeEntryFormPopUp", u"VBasic");
    EXPECT_EQ(snippet.stringValue(), u"RGB(255, 255, 255)");
    EXPECT_TRUE(wasStored());
    choose("codeDragTypePopUp", u"RGB (CSS)");
    EXPECT_EQ(_picker.dragText(), u"rgb(255, 255, 255);");
    EXPECT_TRUE(wasStored());
    choose("hexColorsListPopUp", u"SVG Keyword");
    EXPECT_EQ(_picker.hexSettings().hexColorList(), u"SVG Keyword");
    EXPECT_TRUE(wasStored());
    _panel.log.clear();
    choose("hexColorNamePopUp", u"navy");
    EXPECT_EQ(full.stringValue(), u"#000080");
    EXPECT_EQ(_panel.log, "set ");
    EXPECT_FALSE(wasStored()) << "the colour is not a setting";
}

/// Some desktops send the action of a control that is only written to.
TEST_F(SettingsActionsTest, HaveNoEffectWhileThePageWritesToItsControls)
{
    choose("componentDisplayPopUp", u"Code Snippet");
    choose("cCodeEntryFormPopUp", u"VBasic");
    choose("codeDragTypePopUp", u"RGB (CSS)");
    _panel.changeColor(HostColor::colorWithCalibratedRed(0.2, 0.4, 0.6, 1));
    auto& red = dynamic_cast<HeadlessTextField&>(control("_redHexText"));
    auto& full = dynamic_cast<HeadlessTextField&>(control("_fullHexText"));
    auto& triple = dynamic_cast<HeadlessTextField&>(control("_rgbDecimalText"));
    const std::string before = stateOfPage();
    const HostRect frame = _panel.frame();
    _desktop.journal().clear();
    _panel.log.clear();
    int asked = 0;
    // The page asks for the colour's opacity between the controls.
    _panel.whenAsked = [&] {
        if (asked++ > 0) return;
        _picker.setColor(HostColor::blackColor());
        for (const char* name : {"_redHexText", "_greenHexText", "_blueHexText"}) {
            auto& field = dynamic_cast<HeadlessTextField&>(control(name));
            field.setStringValue(u"7");
            field.sendAction();
            field.sendStep(1, 0);
        }
        full.setStringValue(u"123456");
        full.sendAction();
        const std::u16string shown = triple.stringValue();
        full.sendTextDidChange();
        EXPECT_EQ(triple.stringValue(), shown);
        triple.setStringValue(u"rgb(1, 2, 3)");
        triple.sendAction();
        choose("entryFormPopUp", u"Lowercase");
        dynamic_cast<HeadlessButton&>(control("poundSignCheckbox")).click();
        choose("componentDisplayPopUp", u"Hex");
        choose("cCodeEntryFormPopUp", u"Java CGFloat");
        choose("codeDragTypePopUp", u"Hex Code");
        choose("hexColorsListPopUp", u"SVG Keyword");
        choose("hexColorNamePopUp", u"black");
        for (const char* name :
             {"increaseCubeRingsAction", "decreaseCubeRingsAction", "paletteViewModeAction",
              "cubeViewModeAction", "sliderViewModeAction", "settingsButtonAction",
              "settingsDoneButtonAction", "moreIndicatorAction", "helpHexColorAction"}) {
            _picker.performAction(name, nullptr);
            EXPECT_EQ(stateOfPage(), before) << name;
        }
    };
    _picker.syncPanel();
    EXPECT_EQ(asked, 1);
    _panel.whenAsked = nullptr;
    EXPECT_EQ(stateOfPage(), before);
    EXPECT_EQ(_panel.log, "");
    EXPECT_EQ(_panel.frame(), frame);
    EXPECT_NE(control("_hexColorsView").superview(), nullptr);
    for (const auto& entry : _desktop.journal())
        EXPECT_TRUE(std::holds_alternative<LineLogged>(entry));
    _picker.syncPanel();
    EXPECT_EQ(full.stringValue(), u"#336699");
    EXPECT_EQ(red.stringValue(), u"33");
}

}  // namespace
}  // namespace vantorel
