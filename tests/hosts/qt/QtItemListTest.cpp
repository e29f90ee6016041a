#include "hosts/qt/QtItemList.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtPopUpButton.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QListView>
#include <QTest>
#include <QWindow>

namespace vantorel {
namespace {

HostControlDescription describedPopUp()
{
    HostControlDescription description;
    description.frame = {0, 0, 120, 22};
    return description;
}

/// A pop-up of "No Match", a separator, and names with swatches that count how often they are
/// painted.
class QtItemListTest : public testing::Test {
protected:
    void fill(int count)
    {
        HostMenu menu;
        menu.emplace_back().title = u"No Match";
        menu.push_back(HostMenuItem::separatorItem());
        for (int i = 0; i < count; ++i) {
            HostMenuItem& item = menu.emplace_back();
            item.title = u16From(QStringLiteral("name %1").arg(i));
            item.image = HostImage{{22, 14}, [this](HostCanvas&) { ++_painted; }};
        }
        _popUp.setItems(std::move(menu));
        _popUp.setAction([this](HostControl&) { ++_actions; });
        _popUp.widget()->show();
    }

    QListView* open()
    {
        QTest::mouseClick(_popUp.widget(), Qt::LeftButton);
        QWidget* popUp = QApplication::activePopupWidget();
        return popUp != nullptr ? popUp->findChild<QListView*>() : nullptr;
    }

    static QPoint centerOf(const QListView& view, int row)
    {
        return view.visualRect(view.model()->index(row, 0)).center();
    }

    void TearDown() override
    {
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
    }

    int _painted = 0;
    int _actions = 0;
    QtPopUpButton _popUp{describedPopUp()};
};

TEST_F(QtItemListTest, AClickSelects)
{
    fill(5);
    QListView* view = open();
    ASSERT_NE(view, nullptr);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, centerOf(*view, 4));
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"name 2");
    EXPECT_EQ(_actions, 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(QtItemListTest, TheSeparatorCannotBeSelected)
{
    fill(5);
    QListView* view = open();
    ASSERT_NE(view, nullptr);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, centerOf(*view, 1));
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(_actions, 0);
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_EQ(view->currentIndex().row(), 2) << "the keys pass over it";
}

TEST_F(QtItemListTest, TheReleaseAfterTheOpeningPressSelectsNoItem)
{
    fill(5);
    QListView* view = open();
    ASSERT_NE(view, nullptr);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, centerOf(*view, 4));
    EXPECT_EQ(_actions, 0);
    const QPoint nearby = centerOf(*view, 4) + QPoint(1, 0);
    QTest::mouseMove(view->viewport(), centerOf(*view, 4));
    QTest::mouseMove(view->viewport(), nearby);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, nearby);
    EXPECT_EQ(_actions, 0) << "a click whose hand is not quite still";
    QTest::mouseMove(view->viewport(), centerOf(*view, 3));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, centerOf(*view, 3));
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"name 1");
}

TEST_F(QtItemListTest, TheListNamesItsButtonToTheCompositor)
{
    fill(5);
    ASSERT_NE(open(), nullptr);
    const QWidget* popUp = QApplication::activePopupWidget();
    EXPECT_EQ(popUp->windowHandle()->property("_q_waylandPopupAnchorRect").toRect().size(),
              _popUp.widget()->size());
}

TEST_F(QtItemListTest, KeysMoveAndSelect)
{
    fill(50);
    struct Row {
        Qt::Key key;
        const char16_t* title;
    };
    for (const auto& [key, title] :
         {Row{Qt::Key_End, u"name 49"}, Row{Qt::Key_Up, u"name 48"}, Row{Qt::Key_Home, u"No Match"},
          Row{Qt::Key_Down, u"name 0"}}) {
        QListView* view = open();
        ASSERT_NE(view, nullptr);
        QTest::keyClick(view, key);
        QTest::keyClick(view, Qt::Key_Return);
        EXPECT_EQ(_popUp.titleOfSelectedItem(), title);
    }
    QListView* view = open();
    ASSERT_NE(view, nullptr);
    QTest::keyClicks(view, "name 37");
    EXPECT_EQ(view->currentIndex().row(), 39);
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"name 0");
}

TEST_F(QtItemListTest, OnlyVisibleSwatchesArePainted)
{
    fill(30000);
    QListView* view = open();
    ASSERT_NE(view, nullptr);
    view->grab();
    EXPECT_GT(_painted, 5);
    EXPECT_LT(_painted, 500);
    QTest::keyClick(view, Qt::Key_End);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"name 29999");
}

TEST_F(QtItemListTest, ItemsThatChangeMeanwhileAreSelectedByTitle)
{
    fill(5);
    QListView* view = open();
    ASSERT_NE(view, nullptr);
    _popUp.moveItems({4}, 1);  // "name 2" goes up
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, centerOf(*view, 4));
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"name 2");
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 1);

    view = open();
    ASSERT_NE(view, nullptr);
    _popUp.removeAllItems();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, centerOf(*view, 4));
    EXPECT_EQ(_actions, 1) << "what is gone is not chosen";
}

}  // namespace
}  // namespace vantorel
