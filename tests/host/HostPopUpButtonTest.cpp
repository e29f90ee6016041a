#include "host/HostControls.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

class HostPopUpButtonTest : public testing::Test {
protected:
    HostPopUpButton _popUp{HostRect{}};
};

TEST_F(HostPopUpButtonTest, FillingAnEmptyButtonSelectsTheFirstItem)
{
    EXPECT_EQ(_popUp.indexOfSelectedItem(), HostPopUpButton::noItem);
    _popUp.addItemsWithTitles({u"a", u"b"});
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"a");
}

TEST_F(HostPopUpButtonTest, TheDesktopLearnsOfEachChange)
{
    class Shown final : public HostPopUpButton {
    public:
        Shown() : HostPopUpButton(HostRect{}) {}
        int _changes = 0;

    private:
        void menuDidChange() override { ++_changes; }
    };
    Shown popUp;
    const auto changes = [&](const auto& change) {
        const int before = popUp._changes;
        change();
        return popUp._changes - before;
    };
    EXPECT_EQ(changes([&] { popUp.addItemWithTitle(u"a"); }), 1);
    EXPECT_EQ(changes([&] { popUp.addItemWithTitle(u"b"); }), 1);
    EXPECT_EQ(changes([&] { popUp.setTitleOfItem(1, u"c"); }), 1);
    EXPECT_EQ(changes([&] { popUp.moveItems({1}, 0); }), 1);
    EXPECT_EQ(changes([&] { popUp.selectItemAtIndex(0); }), 1);
    EXPECT_EQ(changes([&] { popUp.removeAllItems(); }), 1);
    EXPECT_EQ(changes([&] { popUp.setItems({}); }), 1);
}

TEST_F(HostPopUpButtonTest, AnUnknownTitleClearsTheSelection)
{
    _popUp.addItemsWithTitles({u"a", u"b"});
    _popUp.selectItemWithTitle(u"c");
    EXPECT_EQ(_popUp.indexOfSelectedItem(), -1);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), std::nullopt);
    _popUp.selectItemAtIndex(7);
    EXPECT_EQ(_popUp.indexOfSelectedItem(), -1);
}

TEST_F(HostPopUpButtonTest, SeparatorsAreNotFoundByTheirEmptyTitle)
{
    _popUp.addItem(HostMenuItem::separatorItem());
    EXPECT_EQ(_popUp.indexOfItemWithTitle(u""), HostPopUpButton::noItem);
}

TEST_F(HostPopUpButtonTest, TheSelectedItemStaysSelectedWhenOthersAreAdded)
{
    _popUp.addItemsWithTitles({u"a", u"b", u"c"});
    _popUp.selectItemAtIndex(1);
    HostMenuItem item;
    item.title = u"d";
    _popUp.insertItem(item, 0);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"b");
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 2);
    _popUp.insertItem(item, 99);
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 2);
    EXPECT_EQ(_popUp.numberOfItems(), 5) << "an index beyond the end is the end";
}

TEST_F(HostPopUpButtonTest, ManyItemsAreMovedAtOnce)
{
    struct Row {
        std::vector<int> indexes;
        int to;
        std::u16string order;
    };
    for (const auto& [indexes, to, order] : {
             Row{{}, 1, u"abcde"},
             Row{{3, 2}, 1, u"adcbe"},
             Row{{0}, 5, u"bcdea"},
             Row{{4, 0}, 2, u"beacd"},
             Row{{2}, 2, u"abcde"},
         }) {
        _popUp.setItems({});
        _popUp.addItemsWithTitles({u"a", u"b", u"c", u"d", u"e"});
        _popUp.selectItemAtIndex(3);
        _popUp.moveItems(indexes, to);
        std::u16string titles;
        for (const HostMenuItem& item : _popUp.menu())
            titles += item.title;
        EXPECT_EQ(titles, order);
        EXPECT_EQ(_popUp.titleOfSelectedItem(), u"d");
    }
}

TEST_F(HostPopUpButtonTest, ReplacingTheItemsSelectsTheFirst)
{
    _popUp.addItemsWithTitles({u"a", u"b"});
    _popUp.selectItemAtIndex(1);
    HostMenu items(2);
    items[0].title = u"c";
    _popUp.setItems(items);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"c");
    _popUp.setItems({});
    EXPECT_EQ(_popUp.indexOfSelectedItem(), HostPopUpButton::noItem);
}

TEST_F(HostPopUpButtonTest, TheCallbackMayRemoveItself)
{
    int notices = 0;
    _popUp.setWillPopUp([&] {
        ++notices;
        _popUp.setWillPopUp({});
    });
    _popUp.sendWillPopUp();
    _popUp.sendWillPopUp();
    EXPECT_EQ(notices, 1);
}

}  // namespace
}  // namespace vantorel
