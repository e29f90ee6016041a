#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtTextField.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QWheelEvent>

namespace vantorel {
namespace {

/// A field that is read as the picker's rgb field is, and that completes the name "maroon".
class QtEntryTest : public testing::Test {
protected:
    QtEntryTest()
    {
        HostControlDescription description;
        description.identifier = "field";
        description.frame = {0, 0, 200, 24};
        _field = std::make_unique<QtTextField>(description);
        _field->setAction([this](HostControl&) { _entered = qStringFrom(_field->stringValue()); });
        _field->setTextDidChange([this] {
            const std::u16string name = u"maroon";
            const auto caret = _field->selectedRange().location;
            const auto start = _field->stringValue().substr(0, caret);
            if (!start.empty() && name.starts_with(start)) {
                _field->setStringValue(name + u": rgb(128, 0, 0)");
            }
        });
        _field->setEntryFit([](const std::u16string& text) {
            if (text == u"bad") return HostEntryFit::doesNotFit;
            return text.find(u"rgb(") == std::u16string::npos ? HostEntryFit::isIgnored
                                                              : HostEntryFit::fits;
        });
        QObject::connect(edit(), &QtLineEdit::textOffered, edit(),
                         [this](const QString& text, bool& isTaken) {
                             _offered = text;
                             isTaken = _takesOffers;
                         });
        QObject::connect(edit(), &QtLineEdit::entryGivenUp, edit(), [this] { ++_givenUp; });
    }
    void SetUp() override
    {
        edit()->setParent(&_window);
        _other.setParent(&_window);
        _other.setFocusPolicy(Qt::StrongFocus);
        _window.show();
        _window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&_window));
        edit()->show();
        edit()->setFocus();
    }
    void TearDown() override { edit()->setParent(nullptr); }
    [[nodiscard]] QtLineEdit* edit() const { return _field->lineEdit(); }
    [[nodiscard]] QString selected() const { return edit()->selectedText(); }
    void paste(const QString& text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(edit(), Qt::Key_V, Qt::ControlModifier);
    }

    QWidget _window;
    QWidget _other;
    std::unique_ptr<QtTextField> _field;
    QString _entered;
    QString _offered;
    bool _takesOffers = true;
    int _givenUp = 0;
};

TEST_F(QtEntryTest, AnIgnoredTextIsOfferedWhenItIsEntered)
{
    QTest::keyClicks(edit(), "ff8000");
    QTest::keyClick(edit(), Qt::Key_Return);
    EXPECT_EQ(_offered, "ff8000");
    EXPECT_EQ(_entered, QString());
    edit()->clear();
    QTest::keyClicks(edit(), "bad");
    QTest::keyClick(edit(), Qt::Key_Return);
    EXPECT_EQ(_offered, "ff8000") << "what was typed is the page's to reject";
    EXPECT_EQ(_entered, "bad");
}

TEST_F(QtEntryTest, AHalfEntryIsGivenUpWhenTheFieldIsLeft)
{
    _takesOffers = false;
    QTest::keyClicks(edit(), "gre");
    QTest::keyClick(edit(), Qt::Key_Return);
    EXPECT_EQ(_givenUp, 0) << "the user may go on";
    QTest::keyClick(edit(), Qt::Key_Tab);
    EXPECT_EQ(_givenUp, 1);
}

TEST_F(QtEntryTest, AnotherWindowOrAMenuDoesNotEndTheEntry)
{
    QTest::keyClicks(edit(), "rgb(1 2 3");
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(edit(), &out);
    }
    EXPECT_EQ(_entered, QString());
}

TEST_F(QtEntryTest, APastedTextReplacesAnUntouchedTextAndLosesItsEnds)
{
    _field->setStringValue(u"rgb(9, 9, 9);");
    paste("  rgb(1, 2, 3) ;\n");
    EXPECT_EQ(edit()->text(), "rgb(1, 2, 3)");
    EXPECT_EQ(_offered, QString()) << "it fits";
    QTest::keyClicks(edit(), "x");
    paste("y");
    EXPECT_EQ(edit()->text(), "rgb(1, 2, 3)xy") << "into a text that the user has typed";
    _field->setStringValue(u"rgb(9, 9, 9);");
    edit()->setSelection(4, 1);
    paste("7");
    EXPECT_EQ(edit()->text(), "rgb(7, 9, 9);") << "a part was selected";
    paste(" \n;");
    EXPECT_EQ(edit()->text(), "rgb(7, 9, 9);");
}

TEST_F(QtEntryTest, APastedTextThatDoesNotFitIsOffered)
{
    paste("bad");
    EXPECT_EQ(_offered, "bad");
    QTest::keyClick(edit(), Qt::Key_Escape);
    EXPECT_EQ(_givenUp, 0) << "the entry has ended";
    paste("oklch(0.5 0.1 20);");
    EXPECT_EQ(_offered, "oklch(0.5 0.1 20)");
}

TEST_F(QtEntryTest, TheContextMenuPastesLikeTheKeys)
{
    _field->setStringValue(u"rgb(9, 9, 9);");
    QApplication::clipboard()->setText(" rgb(1, 2, 3) ");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, edit()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(edit(), &event);
    QPointer<QMenu> menu = edit()->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
        if (action->text().startsWith("&Paste")) action->trigger();
    }
    EXPECT_EQ(edit()->text(), "rgb(1, 2, 3)");
    menu->close();
}

TEST_F(QtEntryTest, ADroppedTextIsAnEntryOfTheField)
{
    _field->setStringValue(u"rgb(9, 9, 9);");
    _other.setFocus();
    QMimeData data;
    data.setText("\nrgb(1, 2, 3);\n");
    QDropEvent drop(QPointF(30, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter({30, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(edit(), &enter);
    QApplication::sendEvent(edit(), &drop);
    EXPECT_EQ(edit()->text(), "rgb(1, 2, 3)");
    QTest::keyClick(edit(), Qt::Key_Tab);
    EXPECT_EQ(_entered, "rgb(1, 2, 3)");
}

TEST_F(QtEntryTest, ArrowsAndTheWheelStepAFieldThatCanStep)
{
    QString calls;
    const auto turn = [this](int angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWheelEvent event({5, 5}, edit()->mapToGlobal(QPointF(5, 5)), {}, {0, angle}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(edit(), &event);
    };
    turn(120);
    QTest::keyClick(edit(), Qt::Key_Up);
    _field->setStep([&](int steps, std::uint64_t flags) {
        calls += QString::number(steps) + (flags == shiftModifierFlag ? "s " : " ");
    });
    QTest::keyClick(edit(), Qt::Key_Up);
    QTest::keyClick(edit(), Qt::Key_Down, Qt::ShiftModifier);
    turn(240);
    turn(60);
    turn(60, Qt::ShiftModifier);
    turn(-120);
    EXPECT_EQ(calls, "1 -1s 2 1s -1 ");
    QTest::keyClicks(edit(), "rgb(1 2 3)");
    QTest::keyClick(edit(), Qt::Key_Up);
    EXPECT_EQ(_entered, "rgb(1 2 3)") << "a step goes on from what was typed";
}

TEST(QtReadOnlyFieldTest, TheTextIsSelectedAndCopiedButNotChanged)
{
    HostControlDescription description;
    description.frame = {0, 0, 200, 24};
    description.readOnly = true;
    QtTextField field(description);
    field.setStringValue(u"Color(1, 2, 3)");
    QtLineEdit* edit = field.lineEdit();
    edit->show();
    QTest::keyClicks(edit, "x");
    QApplication::clipboard()->setText("y");
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.stringValue(), u"Color(1, 2, 3)");
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Color(1, 2, 3)");
}

}  // namespace
}  // namespace vantorel
