#include "PickerPage.h"

namespace vantorel {
namespace {

/// A page that is one part of a larger panel.
class PageRoomTest : public PickerPage {
protected:
    void resizePage(HostSize size)
    {
        _page->setFrame({0, 0, size.width, size.height});
        _picker.viewSizeChanged(_page);
    }
    [[nodiscard]] bool showsSettings()
    {
        return control("_hexSettingsView").superview() != nullptr;
    }
};

TEST_F(PageRoomTest, ThePageFillsItsOwnViewInAWiderPanel)
{
    _panel.resize({900, 700});
    resizePage({260, 300});
    EXPECT_EQ(control("_rgbDecimalText").frame().maxX(), 240);
    EXPECT_EQ(control("hexColorNamePopUp").frame().maxX(), 245);
    resizePage({180, 300});
    EXPECT_EQ(control("_rgbDecimalText").frame().x, -200);
}

TEST_F(PageRoomTest, TheSettingsAskForTheMissingRoom)
{
    _panel.showPage(_page);
    _panel.resize({200, 240});
    _picker.performAction("settingsButtonAction", nullptr);
    EXPECT_EQ(_page->frame().size(), _picker.minContentSizeWitSettings());
}

TEST_F(PageRoomTest, SettingsStayOpenInAPanelThatCannotGrow)
{
    _panel.setCanGrow(false);
    resizePage({200, 200});
    _picker.performAction("settingsButtonAction", nullptr);
    ASSERT_TRUE(showsSettings());
    _picker.viewSizeChanged(nullptr);
    EXPECT_TRUE(showsSettings());
    resizePage({200, 190});
    EXPECT_FALSE(showsSettings());
}

TEST_F(PageRoomTest, SettingsThatGotTheirRoomCloseWhenItIsTakenAway)
{
    resizePage({300, 300});
    _picker.performAction("settingsButtonAction", nullptr);
    ASSERT_TRUE(showsSettings());
    resizePage({211, 300});
    EXPECT_FALSE(showsSettings());
}

}  // namespace
}  // namespace vantorel
