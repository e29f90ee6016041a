#include "hosts/common/PopUpChoice.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

class PopUpChoiceTest : public testing::Test {
protected:
    PopUpChoiceTest()
    {
        _popUp.setAction([this](HostControl&) { ++_actions; });
        _popUp.addItemWithTitle(u"first");
        _popUp.addItem(HostMenuItem::separatorItem());
        HostMenuItem more;
        more.title = u"more";
        more.submenu = [] { return HostMenu{}; };
        _popUp.addItem(more);
        _popUp.addItemWithTitle(u"last");
    }

    HostPopUpButton _popUp{HostRect{}};
    int _actions = 0;
};

TEST_F(PopUpChoiceTest, AnItemIsSelectedBeforeTheAction)
{
    _popUp.setAction([this](HostControl&) { _actions += _popUp.indexOfSelectedItem(); });
    chooseItem(_popUp, 3);
    EXPECT_EQ(_actions, 3);
}

TEST_F(PopUpChoiceTest, SeparatorsAndSubmenusCannotBeChosen)
{
    for (const int index : {-1, 1, 2, 4})
        chooseItem(_popUp, index);
    EXPECT_EQ(_actions, 0);
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 0);
    EXPECT_TRUE(hasSubmenus(_popUp.menu()));
}

TEST_F(PopUpChoiceTest, AnItemsOwnActionSelectsNothingAndMayRebuildTheMenu)
{
    HostMenuItem own;
    own.title = u"own";
    own.action = [this](const HostMenuItem& item) {
        _popUp.removeAllItems();
        _popUp.addItemWithTitle(item.title + u" was chosen");
    };
    _popUp.addItem(own);
    chooseItem(_popUp, 4);
    EXPECT_EQ(_popUp.menu().front().title, u"own was chosen");
    EXPECT_EQ(_actions, 0);
}

TEST_F(PopUpChoiceTest, NeighboursSkipWhatCannotBeChosen)
{
    chooseNeighbour(_popUp, 1);
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 3);
    chooseNeighbour(_popUp, 1);
    EXPECT_EQ(_actions, 1);
    chooseNeighbour(_popUp, -1);
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 0);
}

TEST_F(PopUpChoiceTest, NeighboursSkipItemsWithAnActionOfTheirOwn)
{
    int runs = 0;
    HostMenuItem command;
    command.title = u"command";
    command.action = [&](const HostMenuItem&) { ++runs; };
    _popUp.insertItem(command, 1);
    chooseNeighbour(_popUp, 1);
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"last");
}

TEST_F(PopUpChoiceTest, ItemsThatHaveMovedMeanwhileAreChosenByTitle)
{
    const HostMenuItem last = _popUp.menu()[3];
    _popUp.insertItem(HostMenuItem::separatorItem(), 0);
    chooseOpenedItem(_popUp, last, 3);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"last");
    _popUp.removeAllItems();
    chooseOpenedItem(_popUp, last, 3);
    EXPECT_EQ(_actions, 1);
}

}  // namespace
}  // namespace vantorel
