#include "PanelWindowFixture.h"

#include <QApplication>
#include <QClipboard>

namespace vantorel {
namespace {

/// Texts in the fields of the real page.
class PanelEntryTest : public PanelWindowFixture {
protected:
    QLineEdit* enterField(const char* name)
    {
        auto* field = child<QLineEdit>(name);
        _window->activateWindow();
        field->setFocus();
        return field;
    }
    /// What the panel's colour is after a text was typed key by key and entered.
    QColor colorAfterTyping(const char* fieldName, const char* text)
    {
        _window->colors().setColor(HostColor::blackColor());
        QLineEdit* field = enterField(fieldName);
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        return chosenColor();
    }
    QColor colorAfterPasting(const char* fieldName, const char* text)
    {
        _window->colors().setColor(HostColor::blackColor());
        QLineEdit* field = enterField(fieldName);
        QApplication::clipboard()->setText(text);
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
        return chosenColor();
    }
};

TEST_F(PanelEntryTest, WhatOneTypesIsNotMixedWithACompletion)
{
    // Each of the first letters has a completion in the list "CSS Keyword".
    EXPECT_EQ(colorAfterTyping("_rgbDecimalText", "magenta"), QColor(255, 0, 255));
    EXPECT_EQ(colorAfterTyping("_rgbDecimalText", "ff8000"), QColor(255, 128, 0));
    EXPECT_EQ(colorAfterTyping("_rgbDecimalText", "maroon"), QColor(128, 0, 0));
    EXPECT_EQ(colorAfterTyping("_rgbDecimalText", "rgb(10, 20, 30)"), QColor(10, 20, 30));
    EXPECT_EQ(text("_rgbDecimalText"), "RGB(10, 20, 30);");
    const QColor translucent = colorAfterTyping("_rgbDecimalText", "rgba(10, 20, 30, 0.5)");
    EXPECT_EQ(translucent.rgb(), QColor(10, 20, 30).rgb());
    EXPECT_NEAR(translucent.alphaF(), 0.5, 0.01);
}

TEST_F(PanelEntryTest, ThePageRejectsWhatItAlwaysRejected)
{
    for (const char* typed : {"red", "12345", "#12345678"})
        EXPECT_EQ(colorAfterTyping("_fullHexText", typed), QColor(Qt::black)) << typed;
    EXPECT_EQ(colorAfterTyping("_rgbDecimalText", "rgb(10%, 20%, 30%)"), QColor(Qt::black));
    EXPECT_EQ(colorAfterTyping("_rgbDecimalText", "255,0,128"), QColor(Qt::black));
}

TEST_F(PanelEntryTest, AHalfEntryEndsWhenItsFieldIsLeft)
{
    _window->colors().setColor(rgb(255, 128, 0));
    QLineEdit* field = enterField("_fullHexText");
    field->selectAll();
    QTest::keyClicks(field, "12f");
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(chosenColor(), QColor(0x11, 0x22, 0xFF));
    field = enterField("_rgbDecimalText");
    field->selectAll();
    QTest::keyClicks(field, "zzz");
    QTest::mouseClick(child<QWidget>("_redHexText"), Qt::LeftButton);
    child<QWidget>("_redHexText")->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(text("_rgbDecimalText"), "RGB(17, 34, 255);");
}

TEST_F(PanelEntryTest, APastedColourThatIsNotForTheFieldSetsThePanelsColour)
{
    struct Row {
        const char* field;
        const char* text;
        QColor color;
    };
    for (const Row& row : {Row{"_fullHexText", "oklch(1 0 0)", QColor(255, 255, 255)},
                           Row{"_fullHexText", "#f808", QColor(255, 136, 0, 136)},
                           Row{"_fullHexText", " color: rgb(1 2 3);\n", QColor(1, 2, 3)},
                           Row{"_rgbDecimalText", "Color(0xff7f50)", QColor(255, 127, 80)},
                           Row{"_rgbDecimalText", "ff8000", QColor(255, 128, 0)},
                           Row{"_redHexText", "hsl(120 100% 50% / 50%)", QColor(0, 255, 0, 128)}}) {
        const QColor color = colorAfterPasting(row.field, row.text);
        EXPECT_EQ(color.rgb(), row.color.rgb()) << row.text;
        EXPECT_NEAR(color.alphaF(), row.color.alphaF(), 0.01) << row.text;
    }
}

TEST_F(PanelEntryTest, APastedTextForTheFieldWaitsForReturn)
{
    EXPECT_EQ(colorAfterPasting("_fullHexText", " #12f;\n"), QColor(Qt::black));
    EXPECT_EQ(text("_fullHexText"), "#12f");
    QTest::keyClick(child<QLineEdit>("_fullHexText"), Qt::Key_Return);
    EXPECT_EQ(chosenColor(), QColor(0x11, 0x22, 0xFF));
    EXPECT_EQ(colorAfterPasting("_fullHexText", "no colour"), QColor(Qt::black));
    EXPECT_EQ(text("_fullHexText"), "no colour");
}

TEST_F(PanelEntryTest, KeysAndTheWheelStepAComponent)
{
    _window->colors().setColor(rgb(16, 250, 0));
    QLineEdit* red = enterField("_redHexText");
    QTest::keyClick(red, Qt::Key_Up);
    EXPECT_EQ(chosenColor(), QColor(17, 250, 0));
    EXPECT_EQ(red->text(), "11");
    QTest::keyClick(red, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(chosenColor(), QColor(1, 250, 0));
    QLineEdit* green = child<QLineEdit>("_greenHexText");
    QWheelEvent turn({5, 5}, green->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                     Qt::ShiftModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(green, &turn);
    EXPECT_EQ(chosenColor(), QColor(1, 255, 0));
}

TEST_F(PanelEntryTest, TheSnippetLineIsReadOnly)
{
    EXPECT_TRUE(child<QLineEdit>("_objCCodeText")->isReadOnly());
}

}  // namespace
}  // namespace vantorel
