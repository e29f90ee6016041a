#include "panel/widgets/LastColors.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/CodeWithOpacity.h"
#include "panel/widgets/ThemeTables.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QToolTip>

#include <memory>
#include <set>
#include <utility>

namespace vantorel {
namespace {

HostColor lastColor(const char* code)
{
    return hostColorFrom(QColor(QString::fromLatin1(code)));
}

using Colors = std::vector<HostColor>;

const Colors pins{lastColor("#110000"), lastColor("#220000"), lastColor("#330000")};
const Colors others{lastColor("#001100"), lastColor("#002200"), lastColor("#003300")};

/// Two dozen colours, more than a row has room for.
Colors manyColors()
{
    Colors colors;
    for (int i = 1; i <= 24; ++i)
        colors.push_back(hostColorFrom(QColor(0, 0, 10 * i)));
    return colors;
}

/// A widget at a pixel a device-independent pixel, whatever the screen has.
QImage pixelsOf(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    widget.render(&image);
    return image;
}

/// Sends a colour that is dragged out of a row back into it. Without a screen a drag ends when it
/// begins, so that nothing can be sent in between, except when Qt creates it.
class DragInto final : public QObject {
public:
    DragInto(QWidget& row, QPoint to) : _row(row), _to(to) { row.installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ChildAdded || std::exchange(_isDone, true)) return false;
        const QMimeData data;
        QDragEnterEvent enter(_to, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(watched, &enter);
        QDragMoveEvent move(_to, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(watched, &move);
        wasWelcome = enter.isAccepted() && move.isAccepted();
        picture = pixelsOf(_row);
        QDropEvent drop(_to, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(watched, &drop);
        return false;
    }

public:
    bool wasWelcome = false;
    QImage picture;

private:
    QWidget& _row;
    QPoint _to;
    bool _isDone = false;
};

/// A row of three pinned colours and three others, with everything it asked for.
class LastColorsTest : public testing::Test {
protected:
    void SetUp() override
    {
        _window.setPalette(paletteOf(lightTheme()));
        resizeTo(276, 28);
        _row->setColors(pins, others);
        QObject::connect(_row, &LastColors::chosen, _row,
                         [this](const HostColor& color) { _chosen.push_back(color); });
        QObject::connect(_row, &LastColors::pinRequested, _row,
                         [this](const HostColor& color, bool pinned) {
                             _pinned = std::pair{color, pinned};
                         });
        QObject::connect(_row, &LastColors::pinnedReordered, _row,
                         [this](const Colors& colors) { _order = colors; });
        _window.show();
        _window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&_window));
    }

    void resizeTo(double width, double height)
    {
        _row->resize(scaled(width), scaled(height));
        _window.resize(_row->size());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(_row, key, modifiers);
    }
    [[nodiscard]] QPoint middleOf(int index) const { return _row->rectOf(index).center(); }
    /// Presses a swatch and moves far enough to begin a drag.
    void dragSwatch(int index)
    {
        QTest::mousePress(_row, Qt::LeftButton, {}, middleOf(index));
        const QPointF away(middleOf(index) + QPoint(40, 0));
        QMouseEvent move(QEvent::MouseMove, away, _row->mapToGlobal(away), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(_row, &move);
        QTest::mouseRelease(_row, Qt::LeftButton, {}, away.toPoint());
    }
    /// Opens the menu of the current colour. Returns the action at an index.
    [[nodiscard]] QAction* menuAction(int index)
    {
        delete _row->findChild<QMenu*>();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(_row, &event);
        auto* menu = _row->findChild<QMenu*>();
        return menu != nullptr ? menu->actions().value(index) : nullptr;
    }
    [[nodiscard]] std::set<QRgb> colorsIn(const QRect& place)
    {
        const QImage image = pixelsOf(_window);
        std::set<QRgb> found;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x)
                found.insert(image.pixel(x, y));
        }
        return found;
    }

    QWidget _window;
    LastColors* _row = new LastColors(&_window);
    Colors _chosen;
    std::optional<std::pair<HostColor, bool>> _pinned;
    Colors _order;
};

TEST_F(LastColorsTest, PinnedColoursComeFirstAndEachOnce)
{
    _row->setColors(pins, {others[0], pins[1], others[1]});
    ASSERT_EQ(_row->shownCount(), 5);
    EXPECT_EQ(_row->order().colorAt(2), pins[2]);
    EXPECT_EQ(_row->order().colorAt(3), others[0]);
    EXPECT_EQ(_row->order().colorAt(4), others[1]);
    EXPECT_TRUE(_row->order().isPinned(2));
    EXPECT_FALSE(_row->order().isPinned(3));
}

TEST_F(LastColorsTest, AClickChooses)
{
    QTest::mouseClick(_row, Qt::LeftButton, {}, middleOf(4));
    EXPECT_EQ(_chosen, Colors{others[1]});
    const QPoint between = middleOf(4) + QPoint(0, scaled(11));
    QTest::mouseClick(_row, Qt::LeftButton, {}, between);
    EXPECT_EQ(_chosen.size(), 2U) << "a swatch answers around itself";
    QTest::mousePress(_row, Qt::LeftButton, {}, middleOf(4));
    QTest::mouseRelease(_row, Qt::LeftButton, {}, middleOf(5));
    EXPECT_EQ(_chosen.size(), 2U);
}

TEST_F(LastColorsTest, KeysMoveAndChoose)
{
    _row->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    press(Qt::Key_End);
    press(Qt::Key_Space);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    press(Qt::Key_Enter);
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    EXPECT_EQ(_chosen, (Colors{pins[1], others[2], others[1], pins[0]}));

    _row->setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_Left);
    EXPECT_EQ(_row->current(), 1) << "the next one is at the left";
}

TEST_F(LastColorsTest, ItIsAGridWhereThereIsTheHeight)
{
    resizeTo(228, 76);
    _row->setColors(pins, manyColors());
    EXPECT_EQ(_row->shownCount(), 26) << "the last place is that of the button";
    EXPECT_EQ(_row->rectOf(9).x(), _row->rectOf(0).x()) << "nine columns";
    EXPECT_EQ(_row->rectOf(25).bottom(), _row->height() - 1);
    _row->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(_row->current(), 10);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(_row->current(), 19) << "there is no further row";
    press(Qt::Key_Up);
    EXPECT_EQ(_row->current(), 10);
}

TEST_F(LastColorsTest, PPinsAndUnpins)
{
    _row->setFocus(Qt::TabFocusReason);
    press(Qt::Key_P);
    EXPECT_EQ(_pinned, (std::pair{pins[0], false}));
    press(Qt::Key_End);
    press(Qt::Key_P);
    EXPECT_EQ(_pinned, (std::pair{others[2], true}));

    _row->setColors({pins[0], pins[1], pins[2], others[2]}, {others[0], others[1]});
    EXPECT_EQ(_row->current(), 3) << "the keyboard stays with the colour";
}

TEST_F(LastColorsTest, ControlWithArrowsMovesAPinnedColour)
{
    _row->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(_order, (Colors{pins[1], pins[0], pins[2]}));
    _row->setColors(_order, others);
    EXPECT_EQ(_row->current(), 1);
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(_order, pins);

    _order.clear();
    press(Qt::Key_End);
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_TRUE(_order.empty()) << "the others are in the order of their use";
}

TEST_F(LastColorsTest, TheMenuPinsKeepsAndClears)
{
    int kept = 0;
    int cleared = 0;
    QObject::connect(_row, &LastColors::keepAsListRequested, _row, [&] { ++kept; });
    QObject::connect(_row, &LastColors::clearRequested, _row, [&] { ++cleared; });
    _row->setFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    QAction* pin = menuAction(0);
    ASSERT_NE(pin, nullptr);
    EXPECT_EQ(pin->text(), "Pin #003300");
    pin->trigger();
    EXPECT_EQ(_pinned, (std::pair{others[2], true}));
    menuAction(2)->trigger();
    menuAction(3)->trigger();
    EXPECT_EQ(kept, 1);
    EXPECT_EQ(cleared, 1);

    press(Qt::Key_Home);
    EXPECT_EQ(menuAction(0)->text(), "Unpin #110000");
    _row->setColors(pins, {});
    EXPECT_FALSE(menuAction(3)->isEnabled()) << "the pinned ones stay";
}

TEST_F(LastColorsTest, ARightClickOpensTheMenuOfItsSwatch)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, middleOf(4), _row->mapToGlobal(middleOf(4)));
    QApplication::sendEvent(_row, &event);
    const auto* menu = _row->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().first()->text(), "Pin #002200");
    EXPECT_TRUE(_chosen.empty());
}

TEST_F(LastColorsTest, TheButtonOpensTheMenu)
{
    EXPECT_EQ(_row->menuButton().geometry().right(), _row->width() - 1);
    _row->menuButton().click();
    EXPECT_NE(_row->findChild<QMenu*>(), nullptr);
}

TEST_F(LastColorsTest, AnEmptyRowSaysWhatToPress)
{
    _row->setEmptyHint(QStringLiteral("Ctrl+P picks from the screen"));
    EXPECT_EQ(_row->accessibleDescription(), "");
    _row->setColors({}, {});
    EXPECT_EQ(_row->accessibleDescription(), "Ctrl+P picks from the screen");
    EXPECT_FALSE(_row->menuButton().isVisible());
    EXPECT_EQ(_row->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(colorsIn(_row->rect()).contains(lightTheme().text2.rgb()));
    press(Qt::Key_Return);
    press(Qt::Key_P);
    press(Qt::Key_Menu);
    EXPECT_TRUE(_chosen.empty());
}

TEST_F(LastColorsTest, ASwatchIsDraggedOut)
{
    dragSwatch(4);
    // Without a screen a drag ends at once; Qt deletes it later.
    const auto* drag = _row->findChild<QDrag*>();
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(hostColorFrom(qvariant_cast<QColor>(drag->mimeData()->colorData())), others[1]);
    EXPECT_TRUE(_chosen.empty()) << "a drag is not a click";
}

TEST_F(LastColorsTest, ADragWithinTheRowOrdersThePinnedColours)
{
    {
        const DragInto drag(*_row, middleOf(2) + QPoint(5, 0));
        dragSwatch(0);
        EXPECT_TRUE(drag.wasWelcome);
        EXPECT_EQ(_order, (Colors{pins[1], pins[2], pins[0]}));
        EXPECT_EQ(drag.picture.pixel(_row->rectOf(2).right() + 2, middleOf(2).y()),
                  lightTheme().text.rgb())
            << "a mark shows the place";
    }
    {
        const DragInto drag(*_row, middleOf(0) - QPoint(5, 0));
        dragSwatch(2);
        EXPECT_EQ(_order, (Colors{pins[2], pins[0], pins[1]}));
    }
    {
        const DragInto drag(*_row, middleOf(1) - QPoint(5, 0));
        dragSwatch(4);
        EXPECT_EQ(_order, (Colors{pins[0], others[1], pins[1], pins[2]})) << "pinned there";
    }
    _order.clear();
    const DragInto drag(*_row, middleOf(5));
    dragSwatch(0);
    EXPECT_FALSE(drag.wasWelcome) << "the others have no order of their own";
    EXPECT_TRUE(_order.empty());
}

TEST_F(LastColorsTest, ColoursOfOtherProgramsAreNotTaken)
{
    QMimeData data;
    data.setText(QStringLiteral("red"));
    QDragEnterEvent enter(middleOf(0), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(_row, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(LastColorsTest, EverySwatchHasItsOwnToolTip)
{
    _row->setColors({}, {lastColor("#80ff0000")});
    QHelpEvent help(QEvent::ToolTip, middleOf(0), _row->mapToGlobal(middleOf(0)));
    QApplication::sendEvent(_row, &help);
    EXPECT_EQ(QToolTip::text(), "#FF0000, 50 %");
    QToolTip::hideText();
}

TEST_F(LastColorsTest, EveryColourCanBeReadAndPressed)
{
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(_row);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 7) << "six colours and the button";
    QAccessibleInterface* color = list->child(4);
    EXPECT_EQ(color->text(QAccessible::Name), "#002200");
    EXPECT_EQ(color->text(QAccessible::Description), "");
    EXPECT_EQ(list->child(0)->text(QAccessible::Description), "pinned");
    EXPECT_EQ(color->parent(), list);
    EXPECT_EQ(list->indexOfChild(color), 4);
    const QPoint middle = color->rect().center();
    EXPECT_EQ(list->childAt(middle.x(), middle.y()), color);
    color->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(_chosen, Colors{others[1]});

    color->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(list->focusChild(), color);
    EXPECT_TRUE(color->state().focused);
    EXPECT_EQ(list->child(6)->object(), &_row->menuButton());

    _row->setColors({}, {others[0]});
    EXPECT_EQ(list->childCount(), 2);
    EXPECT_FALSE(color->isValid());
    EXPECT_EQ(color->text(QAccessible::Name), "");
    color->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(_chosen.size(), 1U);
}

TEST_F(LastColorsTest, TheFocusIsShownOnlyToWhoTypes)
{
    const QRgb ring = lightTheme().accent.rgb();
    QTest::mouseClick(_row, Qt::LeftButton, {}, middleOf(1));
    EXPECT_TRUE(_row->hasFocus());
    EXPECT_FALSE(colorsIn(_row->rect()).contains(ring));
    press(Qt::Key_Right);
    EXPECT_TRUE(colorsIn(_row->rectOf(2)).contains(ring));
    EXPECT_FALSE(colorsIn(_row->rectOf(1)).contains(ring));

    // The colour is that of the ring: the line beside it is not.
    _row->setColors({hostColorFrom(lightTheme().accent)}, {});
    EXPECT_TRUE(colorsIn(_row->rectOf(0)).contains(lightTheme().base.rgb()));
}

TEST_F(LastColorsTest, EverySwatchHasAnEdgeAndShowsItsOpacity)
{
    _row->setColors(
        {}, {hostColorFrom(lightTheme().window), lastColor("#80ff0000"), lastColor("#ff0000")});
    const auto inside = [this](int index) { return _row->rectOf(index).adjusted(3, 3, -3, -3); };
    EXPECT_EQ(colorsIn(inside(0)).size(), 1U);
    EXPECT_GT(colorsIn(_row->rectOf(0)).size(), 1U)
        << "the edge of a swatch in its ground's colour";
    EXPECT_EQ(colorsIn(inside(1)).size(), 2U) << "squares";
    EXPECT_EQ(colorsIn(inside(2)).size(), 1U);
}

}  // namespace
}  // namespace vantorel
