#include "hosts/qt/QtButton.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtPopUpButton.h"
#include "hosts/qt/QtTextField.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QListView>
#include <QMenu>
#include <QShortcut>
#include <QTest>

namespace vantorel {
namespace {

HostControlDescription describe(HostRect frame = {0, 0, 100, 24})
{
    HostControlDescription description;
    description.identifier = "control";
    description.frame = frame;
    return description;
}

class QtTextFieldTest : public testing::Test {
protected:
    QtTextFieldTest()
    {
        _field.setAction([this](HostControl&) { ++_actions; });
        _field.setTextDidChange([this] { ++_changes; });
    }
    void SetUp() override
    {
        edit()->show();
        edit()->setFocus();
        edit()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(edit()));
    }
    [[nodiscard]] QLineEdit* edit() const { return static_cast<QLineEdit*>(_field.widget()); }

    int _actions = 0;
    int _changes = 0;
    QtTextField _field{describe()};
};

TEST_F(QtTextFieldTest, PastingCountsAsTyping)
{
    edit()->selectAll();
    edit()->insert("navy");
    EXPECT_EQ(_changes, 1);
}

TEST_F(QtTextFieldTest, PastingFromTheClipboardCountsOnce)
{
    QApplication::clipboard()->setText("rgb(1, 2, 3)");
    QTest::keyClick(edit(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(_field.stringValue(), u"rgb(1, 2, 3)");
    EXPECT_EQ(_changes, 1);
    QTest::keyClick(edit(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(_field.stringValue(), u"");
    EXPECT_EQ(_changes, 2) << "so does taking it back";
}

TEST_F(QtTextFieldTest, AnInputMethodCountsWhenItCommits)
{
    QInputMethodEvent composing(QStringLiteral("nav"), {});
    QApplication::sendEvent(edit(), &composing);
    EXPECT_EQ(_changes, 0);
    EXPECT_EQ(_field.stringValue(), u"");
    QInputMethodEvent committing;
    committing.setCommitString(QStringLiteral("navy"));
    QApplication::sendEvent(edit(), &committing);
    EXPECT_EQ(_changes, 1);
    EXPECT_EQ(_field.stringValue(), u"navy");
}

TEST_F(QtTextFieldTest, InputFromAssistiveProgramsCountsAsTyping)
{
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(edit());
    ASSERT_NE(accessible, nullptr);
    ASSERT_NE(accessible->editableTextInterface(), nullptr);
    accessible->editableTextInterface()->insertText(0, QStringLiteral("navy"));
    EXPECT_EQ(_field.stringValue(), u"navy");
    EXPECT_EQ(_changes, 1);
}

TEST_F(QtTextFieldTest, EscapeOnlyDiscardsTheEntry)
{
    class Window final : public QWidget {
    public:
        int _keys = 0;

    protected:
        void keyPressEvent(QKeyEvent*) override { ++_keys; }
    };
    Window window;
    edit()->setParent(&window);
    window.show();
    int shortcuts = 0;
    QShortcut closing(QKeySequence(Qt::Key_Escape), &window, [&] { ++shortcuts; });
    int givenUp = 0;
    QObject::connect(_field.lineEdit(), &QtLineEdit::entryGivenUp, [&] { ++givenUp; });
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    edit()->setFocus();
    QTest::keyClicks(edit(), "12");
    QTest::keyClick(edit(), Qt::Key_Escape);
    EXPECT_EQ(givenUp, 1);
    EXPECT_EQ(_actions, 0);
    EXPECT_EQ(window._keys, 0);
    EXPECT_EQ(shortcuts, 0);
    EXPECT_TRUE(window.isVisible());
    edit()->setParent(nullptr);
}

TEST_F(QtTextFieldTest, ATextThatNearlyFitsIsDrawnSmaller)
{
    const int full = edit()->font().pixelSize();
    edit()->clearFocus();
    struct Row {
        const char16_t* text;
        bool isSmaller;
    };
    for (const auto& [text, isSmaller] :
         {Row{u"RGB(1);", false}, Row{u"RGB(255, 128, 0);", true},
          Row{u"a line of code that would be too small to read", false}}) {
        _field.setStringValue(text);
        EXPECT_EQ(edit()->font().pixelSize() < full, isSmaller) << qStringFrom(text).toStdString();
    }
    _field.setStringValue(u"RGB(255, 128, 0);");
    edit()->setFocus();
    EXPECT_EQ(edit()->font().pixelSize(), full) << "not while one types";
}

TEST(ReadableTextColorTest, BlackAndRedAreReadableOnEveryBackground)
{
    QPalette light;
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::Text, QColor(20, 20, 20));
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    const HostColor red = HostColor::colorWithCalibratedRed(200 / 255.0, 30 / 255.0, 30 / 255.0, 1);
    EXPECT_EQ(readableTextColor(HostColor::blackColor(), light), QColor(20, 20, 20));
    EXPECT_EQ(readableTextColor(HostColor::blackColor(), dark), QColor(240, 240, 240));
    EXPECT_EQ(readableTextColor(red, light), QColor(200, 30, 30));
    EXPECT_GT(readableTextColor(red, dark).lightness(), 150);
    EXPECT_EQ(readableTextColor(red, dark).hslHue(), QColor(200, 30, 30).hslHue());
}

class QtPopUpButtonTest : public testing::Test {
protected:
    QtPopUpButtonTest()
    {
        _popUp.setAction([this](HostControl&) { ++_actions; });
        _popUp.setWillPopUp([this] { ++_notices; });
        _popUp.addItemsWithTitles({u"Browser Safe", u"CSS Keyword"});
        _popUp.addItem(HostMenuItem::separatorItem());
        HostMenuItem parent;
        parent.title = u"Add";
        HostMenuItem child;
        child.title = u"R&B";
        parent.submenu = [child] { return HostMenu{child}; };
        _popUp.addItem(parent);
        _popUp.widget()->show();
    }
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    void TearDown() override
    {
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
    }

    int _actions = 0;
    int _notices = 0;
    QtPopUpButton _popUp{describe()};
};

TEST_F(QtPopUpButtonTest, TheMenuMarksTheSelectedItem)
{
    QTest::mouseClick(_popUp.widget(), Qt::LeftButton);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(_notices, 1);
    const auto actions = openMenu()->actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[1]->text(), "CSS Keyword");
    EXPECT_TRUE(actions[0]->isChecked());
    EXPECT_TRUE(actions[2]->isSeparator());
    actions[1]->trigger();
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"CSS Keyword");
    EXPECT_EQ(_actions, 1);
}

TEST_F(QtPopUpButtonTest, TypingSelectsAnItemInTheMenu)
{
    QTest::keyClick(_popUp.widget(), Qt::Key_Space);
    ASSERT_NE(openMenu(), nullptr);
    QTest::keyClicks(openMenu(), "cs");
    QTest::keyClick(openMenu(), Qt::Key_Return);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"CSS Keyword");
    EXPECT_EQ(_actions, 1);
}

TEST_F(QtPopUpButtonTest, TypingSelectsAnItemByItsPrefix)
{
    HostMenu menu;
    for (const char16_t* title : {u"Browns & Yellows", u"Web", u"Web hues", u"Whites"})
        menu.emplace_back().title = title;
    menu.emplace_back().title = u"Add";
    menu.back().submenu = [] { return HostMenu(); };
    _popUp.setItems(menu);
    struct Row {
        const char* typed;
        const char* found;
    };
    for (const auto& [typed, found] :
         {Row{"web", "Web"}, Row{"web h", "Web hues"}, Row{"ww", "Web hues"},
          Row{"browns & y", "Browns && Yellows"}, Row{"x", nullptr}}) {
        QTest::keyClick(_popUp.widget(), Qt::Key_Space);
        ASSERT_NE(openMenu(), nullptr);
        openMenu()->setActiveAction(nullptr);
        QTest::keyClicks(openMenu(), typed);
        const QAction* active = openMenu()->activeAction();
        EXPECT_EQ(active != nullptr ? active->text() : QString(), found) << typed;
        openMenu()->close();
    }
}

TEST_F(QtPopUpButtonTest, AnEmptySubmenuIsLabelledAsEmpty)
{
    HostMenu menu(1);
    menu[0].title = u"Add";
    menu[0].submenu = [] { return HostMenu(); };
    _popUp.setItems(menu);
    QTest::keyClick(_popUp.widget(), Qt::Key_Space);
    ASSERT_NE(openMenu(), nullptr);
    QMenu* submenu = openMenu()->actions().front()->menu();
    submenu->popup(QPoint());
    ASSERT_EQ(submenu->actions().size(), 1);
    EXPECT_FALSE(submenu->actions().front()->isEnabled());
}

TEST_F(QtPopUpButtonTest, LettersSearchInAClosedPopUp)
{
    QTest::keyClicks(_popUp.widget(), "css");
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"CSS Keyword");
    EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(QtPopUpButtonTest, TypingOnAClosedPopUpGoesOnAfterABlank)
{
    HostMenu menu;
    for (const char16_t* title :
         {u"VBasic", u"Java CGFloat", u"Java NSInteger", u"Java NSInteger A"})
        menu.emplace_back().title = title;
    _popUp.setItems(menu);
    QTest::keyClicks(_popUp.widget(), "Java NSInteger A");
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"Java NSInteger A");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(QtPopUpButtonTest, RowsOfAllPopUpsHaveOneHeight)
{
    QTest::keyClick(_popUp.widget(), Qt::Key_Space);
    ASSERT_NE(openMenu(), nullptr);
    const int height = openMenu()->actionGeometry(openMenu()->actions().front()).height();
    openMenu()->close();
    HostMenuItem plain;
    plain.title = u"orange";
    HostMenuItem withImage = plain;
    withImage.image = HostImage{{22, 14}, [](HostCanvas&) {}};
    for (const HostMenuItem& item : {plain, withImage}) {
        _popUp.setItems({item});
        _popUp.openMenu();
        auto* list = QApplication::activePopupWidget()->findChild<QListView*>();
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->sizeHintForRow(0), height);
        QApplication::activePopupWidget()->close();
    }
}

TEST(QtButtonTest, APictureHasTheColourOfTheTheme)
{
    auto description = describe();
    description.buttonKind = HostControlDescription::ButtonKind::toggle;
    description.svgImage =
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>"
        "<rect width='16' height='16' fill='currentColor'/></svg>";
    QtButton button(description);
    const auto* shown = static_cast<QAbstractButton*>(button.widget());
    EXPECT_FALSE(shown->icon().isNull());
    const QImage icon = shown->icon().pixmap(16, 16).toImage();
    EXPECT_EQ(icon.pixelColor(8, 8), shown->palette().color(QPalette::ButtonText));
}

}  // namespace
}  // namespace vantorel
