#include "hosts/qt/QtToolButton.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/PanelStyle.h"
#include "panel/widgets/PanelTheme.h"
#include "panel/widgets/ThemeTables.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTest>

namespace vantorel {
namespace {

class PanelStyleTest : public testing::Test {
protected:
    PanelStyleTest() { applyTheme(QStringLiteral("light")); }
    ~PanelStyleTest() override { applyTheme(QStringLiteral("desktop")); }
};

/// Renders a window at a scale.
QImage styledPicture(QWidget& widget, double scale)
{
    QImage picture((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(lightTheme().window);
    widget.render(&picture);
    return picture;
}

bool hasColor(const QImage& picture, const QColor& color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) return true;
        }
    }
    return false;
}

/// A window with one widget at a place of its own, shown and active.
template <class Widget>
class Shown {
public:
    explicit Shown(const QRect& place) : widget(new Widget(&window))
    {
        window.resize(240, 60);
        widget->setGeometry(place);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.setFocus();
        window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    void pressTab()
    {
        window.setFocus();
        QTest::keyClick(&window, Qt::Key_Tab);
        EXPECT_TRUE(widget->hasFocus());
    }

    QWidget window;
    Widget* widget;
};

TEST_F(PanelStyleTest, BordersAreSharpAtEveryScale)
{
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (int left = 4; left < 8; ++left) {
            Shown<QPushButton> shown({left, 10, 90, 28});
            const QImage picture = styledPicture(shown.window, scale);
            const int y = qRound(24 * scale);
            const int edge = qRound(left * scale);
            const int line = qRound(scale);
            EXPECT_EQ(picture.pixelColor(edge - 1, y), lightTheme().window) << scale << ' ' << left;
            for (int x = edge; x < edge + line; ++x)
                EXPECT_EQ(picture.pixelColor(x, y), lightTheme().edge) << scale << ' ' << left;
            EXPECT_EQ(picture.pixelColor(edge + line, y), lightTheme().control)
                << scale << ' ' << left;
        }
    }
}

TEST_F(PanelStyleTest, CornersAreRound)
{
    Shown<QPushButton> shown({10, 10, 90, 28});
    const QImage picture = styledPicture(shown.window, 1);
    EXPECT_EQ(picture.pixelColor(10, 10), lightTheme().window);
}

TEST_F(PanelStyleTest, TheFocusOfAButtonIsSeenAfterAKeyOnly)
{
    Shown<QPushButton> shown({10, 10, 90, 28});
    shown.widget->setFocus(Qt::MouseFocusReason);
    ASSERT_TRUE(shown.widget->hasFocus());
    EXPECT_FALSE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
    shown.pressTab();
    const QImage picture = styledPicture(shown.window, 1);
    for (const int x : {10, 11, 98, 99})
        EXPECT_EQ(picture.pixelColor(x, 24), lightTheme().accent) << x;
}

TEST_F(PanelStyleTest, AClickAfterAKeyHidesTheFocus)
{
    Shown<QPushButton> shown({10, 10, 90, 28});
    shown.pressTab();
    ASSERT_TRUE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
    QTest::mouseClick(shown.widget, Qt::LeftButton);
    EXPECT_TRUE(shown.widget->hasFocus());
    EXPECT_FALSE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
    QTest::keyClick(shown.widget, Qt::Key_Shift);
    EXPECT_FALSE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
    QTest::keyClick(shown.widget, Qt::Key_Space);
    EXPECT_TRUE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
}

TEST_F(PanelStyleTest, TheFocusOfAHostsToolButtonIsSeenAfterAKeyOnly)
{
    Shown<QtToolButton> shown({10, 10, 22, 20});
    shown.widget->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
    shown.pressTab();
    EXPECT_TRUE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
}

TEST_F(PanelStyleTest, TheFocusOfACheckBoxIsSeenAfterAKeyOnly)
{
    Shown<QCheckBox> shown({10, 10, 90, 28});
    shown.widget->setChecked(true);
    shown.widget->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
    shown.pressTab();
    EXPECT_TRUE(hasColor(styledPicture(shown.window, 1), lightTheme().accent));
}

TEST_F(PanelStyleTest, TheFocusOfAFieldIsAlwaysSeen)
{
    Shown<QLineEdit> shown({10, 10, 90, 28});
    EXPECT_EQ(styledPicture(shown.window, 1).pixelColor(10, 24), lightTheme().edge);
    shown.widget->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(styledPicture(shown.window, 1).pixelColor(10, 24), lightTheme().accent);
}

TEST_F(PanelStyleTest, AComboBoxElidesAndKeepsTheTextFromItsArrow)
{
    Shown<QComboBox> shown({10, 10, 90, 28});
    shown.widget->addItem(QStringLiteral("MMMMMMMMMMMMMMMMMMMMMMMM"));
    QStyleOptionComboBox option;
    option.initFrom(shown.widget);
    const QStyle& style = *QApplication::style();
    const QRect text = style.subControlRect(QStyle::CC_ComboBox, &option,
                                            QStyle::SC_ComboBoxEditField, shown.widget);
    const QRect arrow =
        style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, shown.widget);
    EXPECT_FALSE(text.intersects(arrow));
    const QImage picture = styledPicture(*shown.widget, 1);
    for (int x = text.right() + 1; x < arrow.left() + 3; ++x) {
        for (int y = 2; y < 26; ++y)
            EXPECT_EQ(picture.pixelColor(x, y), lightTheme().control) << x << ' ' << y;
    }
}

TEST_F(PanelStyleTest, AComboBoxAsksForTheRoomThatItsTextNeeds)
{
    for (const char* text : {"100 %", "fjord", "Ill", "Copy the colour and stay"}) {
        QComboBox combo;
        combo.addItem(QString::fromLatin1(text));
        combo.resize(combo.sizeHint());
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        const QRect room = QApplication::style()->subControlRect(
            QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
        constexpr int labelPadding = 4;
        EXPECT_GE(room.width() - labelPadding,
                  QFontMetrics(combo.font()).horizontalAdvance(combo.currentText()))
            << text;
    }
}

TEST_F(PanelStyleTest, RowsOfAnOpenComboBoxAreAsInMenus)
{
    Shown<QComboBox> shown({10, 10, 90, 28});
    shown.widget->addItems({QStringLiteral("One"), QStringLiteral("Two")});
    shown.widget->showPopup();
    const int row = shown.widget->view()->sizeHintForRow(0);
    EXPECT_GE(row, 24);
    EXPECT_LT(row, 2 * 28);
    shown.widget->hidePopup();
}

TEST_F(PanelStyleTest, TheMenuRowUnderThePointerHasTheAccent)
{
    QMenu menu;
    menu.addAction(QStringLiteral("First"));
    QAction* second = menu.addAction(QStringLiteral("Second"));
    menu.popup({0, 0});
    menu.setActiveAction(second);
    const QImage picture = styledPicture(menu, 1);
    const QRect row = menu.actionGeometry(second);
    EXPECT_EQ(picture.pixelColor(row.right() - 8, row.center().y()), lightTheme().accent);
    EXPECT_GE(row.height(), 24);
    menu.close();
}

TEST_F(PanelStyleTest, TheIconOfAMenuRowHasTheColourOfItsText)
{
    QMenu menu;
    QAction* row = menu.addAction(copyIcon(), {});
    QAction* other = menu.addAction(copyIcon(), {});
    menu.popup({0, 0});
    menu.setActiveAction(row);
    const QImage picture = styledPicture(menu, 1);
    const QImage selected = picture.copy(menu.actionGeometry(row));
    EXPECT_TRUE(hasColor(selected, lightTheme().onAccent));
    EXPECT_FALSE(hasColor(selected, lightTheme().text));
    EXPECT_TRUE(hasColor(picture.copy(menu.actionGeometry(other)), lightTheme().text));
    menu.close();
}

TEST_F(PanelStyleTest, AChosenRowOfAListIsGrey)
{
    Shown<QListWidget> shown({0, 0, 200, 60});
    shown.widget->addItems({QStringLiteral("General"), QStringLiteral("Picking")});
    shown.widget->setCurrentRow(0);
    const QRect row = shown.widget->visualItemRect(shown.widget->item(0));
    const QImage picture = styledPicture(*shown.widget->viewport(), 1);
    EXPECT_EQ(picture.pixelColor(row.right() - 8, row.center().y()), lightTheme().down);
    EXPECT_EQ(picture.pixelColor(row.left() + 1, row.center().y()), lightTheme().text);
    EXPECT_EQ(shown.widget->palette().color(QPalette::HighlightedText), lightTheme().text);
    QLineEdit editor(shown.widget->viewport());
    editor.ensurePolished();
    EXPECT_EQ(editor.palette().color(QPalette::Highlight), lightTheme().accent);
}

TEST_F(PanelStyleTest, AScrollBarLiesOnTheGroundOfItsList)
{
    Shown<QListWidget> shown({0, 0, 200, 60});
    for (int i = 0; i < 20; ++i)
        shown.widget->addItem(QString::number(i));
    QCoreApplication::processEvents();
    QScrollBar& bar = *shown.widget->verticalScrollBar();
    ASSERT_TRUE(bar.isVisible());
    const QImage picture = styledPicture(bar, 1);
    EXPECT_EQ(picture.pixelColor(0, 0), lightTheme().base);
    EXPECT_EQ(picture.pixelColor(bar.width() / 2, 12), lightTheme().edge);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, bar.height() - 2});
    EXPECT_GT(bar.value(), 0);
}

}  // namespace
}  // namespace vantorel
