#include "PanelWindowFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QWheelEvent>

namespace vantorel {
namespace {

/// The colours view by keyboard and with the mouse wheel.
class PanelKeysTest : public PanelWindowFixture {
protected:
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        _window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(_window.get()));
        _view = child<QWidget>("_hexColorsView");
        _window->colors().setColor(rgb(0x10, 0x7F, 0xFF));
    }
    void TearDown() override { show("pickViewModeButton"); }
    void show(const char* mode)
    {
        child<QAbstractButton>(mode)->click();
        _view->setFocus(Qt::TabFocusReason);
        _view->grab();  // the swatches have their places once they are painted
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(_view, key, modifiers);
    }
    QString code() const { return text("_fullHexText"); }
    QString spoken() const
    {
        return QAccessible::queryAccessibleInterface(_view)->text(QAccessible::Description);
    }

    QWidget* _view = nullptr;
};

TEST_F(PanelKeysTest, InTheSliderArrowsChangeDigitAndColumn)
{
    show("pickViewModeButton");
    ASSERT_TRUE(_view->hasFocus());
    EXPECT_TRUE(spoken().startsWith("Red, left digit: 1")) << spoken().toStdString();
    press(Qt::Key_Up);
    EXPECT_EQ(code(), "#207FFF");
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    EXPECT_EQ(code(), "#217FFF");
    press(Qt::Key_Right);
    EXPECT_TRUE(spoken().startsWith("Green, left digit: 7")) << spoken().toStdString();
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(code(), "#2166FF") << "with Shift, both digits";
    press(Qt::Key_End);
    press(Qt::Key_PageDown);
    EXPECT_EQ(code(), "#2166F0");
    press(Qt::Key_PageUp);
    press(Qt::Key_Home);
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(code(), "#2166FF") << "keys of shortcuts are not for the view";
}

TEST_F(PanelKeysTest, TheOpacityStaysWhenKeysPick)
{
    show("pickViewModeButton");
    _window->colors().setColor(rgb(0x10, 0x7F, 0xFF, 0.5));
    press(Qt::Key_Up);
    EXPECT_EQ(code(), "#207FFF");
    EXPECT_NEAR(chosenColor().alphaF(), 0.5, 0.01);
}

TEST_F(PanelKeysTest, InThePaletteArrowsMoveAndEnterPicks)
{
    show("paletteViewModeButton");
    _window->colors().setColor(rgb(0, 0, 128));
    EXPECT_TRUE(spoken().startsWith("navy, #000080")) << spoken().toStdString();
    press(Qt::Key_Home);
    press(Qt::Key_PageUp);
    const QString first = spoken().section(u';', 0, 0);
    press(Qt::Key_Right);
    EXPECT_NE(spoken().section(u';', 0, 0), first);
    EXPECT_EQ(code(), "#000080") << "nothing is picked yet";
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    EXPECT_TRUE(first.endsWith(code())) << first.toStdString();
}

TEST_F(PanelKeysTest, OnTheWheelArrowsMoveAndEnterPicks)
{
    show("wheelViewModeButton");
    _window->colors().setColor(rgb(255, 0, 0));
    EXPECT_TRUE(spoken().startsWith("#FF0000; ")) << spoken().toStdString();
    press(Qt::Key_Up);
    const QString reached = spoken().section(u';', 0, 0);
    EXPECT_NE(reached, "#FF0000");
    EXPECT_EQ(code(), "#FF0000");
    press(Qt::Key_Space);
    EXPECT_EQ(code(), reached);
}

TEST_F(PanelKeysTest, TheReachedCellAndARingAreShownForTheKeyboardOnly)
{
    show("paletteViewModeButton");
    _window->setFocus();
    const QImage plain = _view->grab().toImage();
    _view->setFocus(Qt::TabFocusReason);
    EXPECT_NE(_view->grab().toImage(), plain);
    _window->setFocus();
    EXPECT_EQ(_view->grab().toImage(), plain);
    _view->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(_view->grab().toImage(), plain) << "a click needs no ring";
}

TEST_F(PanelKeysTest, TheWheelStepsTheDigitUnderThePointer)
{
    show("pickViewModeButton");
    const HostRect bounds{0, 0, double(_view->width()), double(_view->height())};
    // The middles of green's left and right digit, columns 6 and 8 of 15.
    const QPointF left = widgetPoint({1 + (bounds.width - 2) / 15 * 6.5, 100}, bounds);
    const QPointF right = widgetPoint({1 + (bounds.width - 2) / 15 * 8.5, 100}, bounds);
    const auto turn = [&](QPointF at, int angle, Qt::KeyboardModifiers modifiers = {}) {
        QWheelEvent event(at, _view->mapToGlobal(at), {}, {0, angle}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(_view, &event);
    };
    turn(right, -120);
    EXPECT_EQ(code(), "#107EFF");
    turn(right, 240);
    EXPECT_EQ(code(), "#107FFF") << "F is the last";
    turn(left, 240, Qt::ShiftModifier);
    EXPECT_EQ(code(), "#1099FF") << "with Shift, both digits";
}

TEST_F(PanelKeysTest, BothWellsTakeTheFocus)
{
    for (const char* name : {"colorWell", "backgroundWell"}) {
        auto* well = child<QWidget>(name);
        _window->setFocus();
        // The band paints its halves.
        const auto picture = [well] { return well->parentWidget()->grab().toImage(); };
        const QImage plain = picture();
        for (int i = 0; i < 40 && QApplication::focusWidget() != well; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(well->hasFocus()) << name;
        EXPECT_NE(picture(), plain) << name;
    }
}

}  // namespace
}  // namespace vantorel
