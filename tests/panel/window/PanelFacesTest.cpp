#include "PanelWindowFixture.h"

#include <QAbstractButton>

namespace vantorel {
namespace {

/// The faces of the page in windows of any size.
class PanelFacesTest : public PanelWindowFixture {
protected:
    void showSettings()
    {
        auto* button = child<QAbstractButton>("settingsButton");
        button->setFocus();
        button->click();
    }
    void chooseComponentDisplay(int index)
    {
        auto* popUp = child<QWidget>("componentDisplayPopUp");
        QTest::keyClick(popUp, Qt::Key_Home);
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(popUp, Qt::Key_Up);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(popUp, Qt::Key_Down);
    }
    void finishSettings()
    {
        auto* button = child<QAbstractButton>("settingsDoneButton");
        button->setFocus();
        button->click();
    }
    /// The widget of the page that gets a click in the middle of a widget.
    QWidget* hitAt(const QWidget& widget)
    {
        return _window->childAt(widget.mapTo(_window.get(), widget.rect().center()));
    }
    QStringList namesInTabOrder()
    {
        QStringList names;
        _window->activateWindow();
        auto* first = child<QWidget>("_fullHexText");
        first->setFocus();
        do {
            names.append(_window->focusWidget()->objectName());
            QTest::keyClick(_window->focusWidget(), Qt::Key_Tab);
        } while (_window->focusWidget() != first && names.size() < 40);
        return names;
    }
};

TEST_F(PanelFacesTest, WhatThePageParksIsOutOfSightAtAnyWidth)
{
    for (const int width : {530, 600, 900}) {
        SCOPED_TRACE(width);
        _window->resizeToPage({width, 340});
        EXPECT_TRUE(child<QWidget>("_cursorReadoutText")->isHidden());
        EXPECT_TRUE(child<QWidget>("_objCCodeText")->isHidden());
        for (const char* name : {"pickViewModeButton", "paletteViewModeButton",
                                 "wheelViewModeButton", "settingsButton", "_redHexText"}) {
            EXPECT_EQ(hitAt(*child<QWidget>(name)), child<QWidget>(name)) << name;
        }
    }
}

TEST_F(PanelFacesTest, TheSnippetLineStaysAwayAfterAWidePage)
{
    _window->resizeToPage({900, 340});
    showSettings();
    chooseComponentDisplay(3);
    EXPECT_TRUE(child<QWidget>("_objCCodeText")->isVisible());
    EXPECT_TRUE(child<QWidget>("_redHexText")->isHidden());
    chooseComponentDisplay(0);
    // Its width is more than the distance to its parking place.
    EXPECT_GT(child<QWidget>("_objCCodeText")->geometry().right(), 0);
    EXPECT_TRUE(child<QWidget>("_objCCodeText")->isHidden());
    EXPECT_TRUE(child<QWidget>("_redHexText")->isVisible());
}

TEST_F(PanelFacesTest, RowsOfTheSettingsThatDoNotFitStayAway)
{
    _window->resizeToPage({900, 220});
    showSettings();
    for (const char* name : {"codeDragTypePopUp", "codeDragTypeLabel"})
        EXPECT_TRUE(child<QWidget>(name)->isHidden()) << name;
    EXPECT_TRUE(child<QWidget>("moreIndicatorButton")->isVisible());
    _window->resizeToPage({900, 400});
    EXPECT_TRUE(child<QWidget>("codeDragTypePopUp")->isVisible());
    EXPECT_TRUE(child<QWidget>("moreIndicatorButton")->isHidden());
}

TEST_F(PanelFacesTest, TheWindowGoesBackToItsSizeAfterAWiderPage)
{
    _window->resizeToPage({180, 340});
    const QSize size = _window->size();
    _window->pages().showPage(1);
    ASSERT_GT(_window->width(), size.width());
    _window->pages().showPage(0);
    EXPECT_EQ(_window->size(), size);
    _window->pages().showPage(1);
    const QSize own = _window->size() + QSize(40, 0);
    _window->resize(own);
    _window->pages().showPage(0);
    EXPECT_EQ(_window->size(), own) << "the user's own size";
}

TEST_F(PanelFacesTest, TheFocusIsOnTheSettingsButtonAfterTheSettings)
{
    _window->activateWindow();
    showSettings();
    QTest::keyClick(child<QWidget>("settingsButton"), Qt::Key_Tab);
    finishSettings();
    EXPECT_EQ(_window->focusWidget(), child<QWidget>("settingsButton"));
}

TEST_F(PanelFacesTest, TabGoesAsOneReads)
{
    const QStringList colors = namesInTabOrder();
    EXPECT_EQ(colors.mid(0, 12),
              (QStringList{"_fullHexText", "_rgbDecimalText", "pickViewModeButton",
                           "paletteViewModeButton", "wheelViewModeButton", "settingsButton",
                           "_hexColorsView", "_redHexText", "_greenHexText", "_blueHexText",
                           "hexColorsListPopUp", "hexColorNamePopUp"}))
        << colors.join(" ").toStdString();
    showSettings();
    const QStringList settings = namesInTabOrder();
    EXPECT_EQ(settings.mid(0, 16),
              (QStringList{"_fullHexText", "_rgbDecimalText", "pickViewModeButton",
                           "paletteViewModeButton", "wheelViewModeButton", "settingsButton",
                           "poundSignCheckbox", "entryFormPopUp", "componentDisplayPopUp",
                           "cCodeEntryFormPopUp", "codeDragTypePopUp", "helpButton",
                           "settingsDoneButton", "_redHexText", "_greenHexText", "_blueHexText"}))
        << settings.join(" ").toStdString();
}

TEST_F(PanelFacesTest, TheFieldsHaveTheirPlacesWhenTheSettingsCloseInAResize)
{
    _window->resizeToPage({480, 400});
    showSettings();
    _window->resizeToPage({180, 286});
    ASSERT_NE(child<QWidget>("_hexColorsView"), nullptr) << "the settings have closed";
    const QRect page = child<QWidget>("_hexPickerView")->rect();
    for (const char* name : {"_redHexText", "_greenHexText", "_blueHexText"})
        EXPECT_TRUE(page.contains(child<QWidget>(name)->geometry())) << name;
}

TEST_F(PanelFacesTest, AToolTipOfBlanksIsNotShown)
{
    _window->colors().setColor(rgb(0, 18, 255));
    EXPECT_EQ(child<QWidget>("_redHexText")->toolTip(), QString());
    EXPECT_EQ(child<QWidget>("_greenHexText")->toolTip().trimmed(), "18");
}

}  // namespace
}  // namespace vantorel
