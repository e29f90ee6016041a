#include "PanelCommandsFixture.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/ColorField.h"
#include "panel/widgets/FormList.h"

#include <QComboBox>
#include <QMenu>
#include <QSlider>
#include <QToolButton>

namespace vantorel {
namespace {

class ColorEntryTest : public PanelCommandsFixture {
protected:
    [[nodiscard]] ColorField& field() const { return *child<ColorField>("colorField"); }
    [[nodiscard]] QLineEdit& edit() const { return *child<QLineEdit>("colorText"); }
    void typeColor(const QString& text)
    {
        edit().setFocus();
        edit().selectAll();
        QTest::keyClicks(&edit(), text);
    }
    [[nodiscard]] QString name() const { return child<QLabel>("colorName")->text(); }
    void chooseForm(const QString& title)
    {
        QMenu* menu = field().findChildren<QToolButton*>().front()->menu();
        emit menu->aboutToShow();
        for (QAction* action : menu->actions()) {
            if (action->text() == title) return action->trigger();
        }
        FAIL() << title.toStdString();
    }
};

TEST_F(ColorEntryTest, TheFieldShowsWhatIsCopied)
{
    EXPECT_EQ(field().text(), "#FF8000");
    chooseForm("OKLCH (CSS)");
    EXPECT_EQ(field().text(), "oklch(73.189% 0.1858 52.985)");
    _window->setFocus();
    type(QKeySequence("Ctrl+C"));
    EXPECT_EQ(clipboard().text(), field().text());
    chooseForm("As in the settings of the page");
    EXPECT_EQ(field().text(), "#FF8000");
}

TEST_F(ColorEntryTest, CopyInTheFieldCopiesTheSelectionOrAll)
{
    edit().setFocus();
    edit().deselect();
    QTest::keySequence(&edit(), QKeySequence("Ctrl+C"));
    EXPECT_EQ(clipboard().text(), "#FF8000");
    EXPECT_TRUE(clipboard().hasColor());
    edit().setSelection(1, 2);
    QTest::keySequence(&edit(), QKeySequence("Ctrl+C"));
    EXPECT_EQ(clipboard().text(), "FF");
}

TEST_F(ColorEntryTest, EveryFormIsRead)
{
    struct Row {
        const char* text;
        QRgb color;
    };
    for (const auto& [text, color] :
         {Row{"oklch(0 0 0)", qRgb(0, 0, 0)}, Row{"navy", qRgb(0, 0, 128)},
          Row{"rgb(1 2 3 / 50%)", qRgba(1, 2, 3, 128)}, Row{"#f80", qRgb(255, 136, 0)},
          Row{"color: hsl(120 100% 50%);", qRgb(0, 255, 0)},
          Row{"Color(0xff102030)", qRgb(16, 32, 48)}}) {
        typeColor(QString::fromUtf8(text));
        QTest::keyClick(&edit(), Qt::Key_Return);
        EXPECT_EQ(chosenColor().rgba(), color) << text;
        EXPECT_FALSE(field().hasError());
    }
    EXPECT_EQ(text("_fullHexText"), "#102030") << "the page follows";
}

TEST_F(ColorEntryTest, WhatCannotBeReadIsReportedUntilItIsMended)
{
    typeColor("rgb(1 2 blu)");
    EXPECT_FALSE(messageLabel().isVisible()) << "not before it is entered";
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_TRUE(field().hasError());
    EXPECT_TRUE(messageLabel().isVisible());
    EXPECT_EQ(edit().text(), "rgb(1 2 blu)") << "nothing that was typed is lost";
    EXPECT_EQ(chosenColor().rgb(), qRgb(255, 128, 0));

    edit().setCursorPosition(11);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&edit(), Qt::Key_Backspace);
    QTest::keyClicks(&edit(), "3");
    EXPECT_FALSE(field().hasError());
    EXPECT_FALSE(messageLabel().isVisible());
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(chosenColor().rgb(), qRgb(1, 2, 3));
}

TEST_F(ColorEntryTest, EscapeRestoresTheColoursText)
{
    typeColor("nonsense");
    QTest::keyClick(&edit(), Qt::Key_Return);
    ASSERT_TRUE(field().hasError());
    QTest::keyClick(&edit(), Qt::Key_Escape);
    EXPECT_FALSE(field().hasError());
    EXPECT_FALSE(messageLabel().isVisible());
    EXPECT_EQ(edit().text(), "#FF8000");
    EXPECT_TRUE(_window->isVisible());
}

TEST_F(ColorEntryTest, LeavingTheFieldEntersItsText)
{
    typeColor("navy");
    child<QLineEdit>("_fullHexText")->setFocus();
    EXPECT_EQ(chosenColor().rgb(), qRgb(0, 0, 128));
}

TEST_F(ColorEntryTest, TheFieldFollowsTheSettingsOfThePage)
{
    child<QToolButton>("settingsButton")->click();
    auto* pound = child<QAbstractButton>("poundSignCheckbox");
    QTest::mouseClick(pound, Qt::LeftButton, {}, QPoint(6, pound->height() / 2));
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit().text() == "FF8000"; }));
    QTest::mouseClick(pound, Qt::LeftButton, {}, QPoint(6, pound->height() / 2));
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit().text() == "#FF8000"; }));
    child<QToolButton>("settingsButton")->click();
}

TEST_F(ColorEntryTest, TheNameIsExactOrTheNearest)
{
    _window->resizeToPage({296, 340});
    EXPECT_EQ(name(), "Nearest: darkorange");
    _window->colors().setColor(rgb(0, 0, 128));
    EXPECT_EQ(name(), "navy");
}

TEST_F(ColorEntryTest, AClickOnTheBackgroundEditsIt)
{
    QTest::mouseClick(child<QWidget>("backgroundWell"), Qt::LeftButton);
    EXPECT_EQ(_window->colors().edited(), EditedColor::background);
    EXPECT_EQ(field().text(), "#FFFFFF");
    EXPECT_EQ(text("_fullHexText"), "#FFFFFF") << "on the page, too";
    typeColor("#102030");
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(_window->colors().background(), rgb(16, 32, 48));
    EXPECT_EQ(_window->colors().foreground(), rgb(255, 128, 0));
    _window->setFocus();
    type(QKeySequence("Ctrl+C"));
    EXPECT_EQ(clipboard().text(), "#102030") << "what is shown is copied";

    type(QKeySequence("Ctrl+Z"));
    EXPECT_EQ(_window->colors().background(), rgb(255, 255, 255));
    EXPECT_EQ(_window->colors().foreground(), rgb(255, 128, 0));

    QTest::mouseClick(child<QWidget>("colorWell"), Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_EQ(field().text(), "#FF8000");
    EXPECT_EQ(text("_fullHexText"), "#FF8000");
}

TEST_F(ColorEntryTest, TheFormIsRemembered)
{
    chooseForm("HSL (CSS)");
    writePanelMemory(_window->memory());
    PanelWindow next(_desktop, _search.plugins, _problems);
    next.recall(readPanelMemory());
    EXPECT_EQ(next.exchange().copiedText(), "hsl(30.12 100% 50%)");
}

TEST_F(ColorEntryTest, AWideWindowListsTheFormsAndAClickCopiesOne)
{
    auto* forms = child<FormList>("formList");
    EXPECT_FALSE(forms->isVisible());
    _window->resizeAtOnce({scaled(640), scaled(560)});
    ASSERT_TRUE(forms->isVisible());
    _window->colors().setColor(rgb(0, 128, 255));
    const auto rows = forms->findChildren<QAbstractButton*>();
    ASSERT_GE(rows.size(), 3);
    EXPECT_EQ(rows[1]->accessibleDescription(), "RGB(0, 128, 255);");
    QTest::mouseClick(rows[1], Qt::LeftButton);
    EXPECT_EQ(clipboard().text(), rows[1]->accessibleDescription());
}

}  // namespace
}  // namespace vantorel
