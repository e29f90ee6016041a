#include "ConformanceTest.h"

#include "text/Unicode.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

class PopUpsConformance : public ConformanceTest {
protected:
    PopUpsConformance() : popUp(factory.makePopUpButton(described({10, 20, 120, 24})))
    {
        popUp->setAction([this](HostControl&) {
            chosen.push_back(popUp->titleOfSelectedItem().value_or(u"nothing"));
        });
        root.addSubview(*popUp);
        popUp->setItems({titledItem(u"Browser Safe"), titledItem(u"CSS Keyword"),
                         HostMenuItem::separatorItem(), titledItem(u"R&B_1 <b>")});
        host->handleEvents();
    }

    std::unique_ptr<HostPopUpButton> popUp;
    std::vector<std::u16string> chosen;
};

TEST_F(PopUpsConformance, ChoosingSelectsAndSendsTheActionOnce)
{
    for (const char16_t* title : {u"CSS Keyword", u"R&B_1 <b>", u"Browser Safe"}) {
        chosen.clear();
        host->open(*popUp);
        EXPECT_TRUE(host->hasOpenMenu());
        EXPECT_TRUE(host->choose({title}));
        EXPECT_THAT(chosen, ElementsAre(title));
        EXPECT_FALSE(host->hasOpenMenu());
    }
}

TEST_F(PopUpsConformance, TheSelectedItemCanBeChosenAgain)
{
    host->open(*popUp);
    EXPECT_TRUE(host->choose({u"Browser Safe"}));
    EXPECT_THAT(chosen, ElementsAre(u"Browser Safe"));
}

TEST_F(PopUpsConformance, WhatCodeSelectsIsNotReported)
{
    popUp->selectItemAtIndex(1);
    popUp->selectItemWithTitle(u"nothing of the kind");
    popUp->addItemWithTitle(u"More");
    popUp->removeAllItems();
    host->handleEvents();
    EXPECT_TRUE(chosen.empty());
}

TEST_F(PopUpsConformance, TheMenuHasTheItemsThatTheNoticeBeforeItMakes)
{
    int notices = 0;
    popUp->setWillPopUp([&] {
        ++notices;
        popUp->setItems({titledItem(u"Fresh")});
    });
    host->open(*popUp);
    EXPECT_EQ(notices, 1);
    EXPECT_TRUE(host->choose({u"Fresh"}));
    EXPECT_EQ(notices, 1);
}

TEST_F(PopUpsConformance, AnItemWithAnActionRunsItAndIsNotSelected)
{
    std::u16string ran;
    HostMenuItem item = titledItem(u"Own");
    item.action = [&](const HostMenuItem& self) {
        ran = self.title;
        popUp->removeAllItems();  // as an action that rebuilds the menu does
    };
    popUp->addItem(item);
    host->open(*popUp);
    EXPECT_TRUE(host->choose({u"Own"}));
    EXPECT_EQ(ran, u"Own");
    EXPECT_TRUE(chosen.empty());
}

TEST_F(PopUpsConformance, ASubmenuIsMadeWhenItIsReached)
{
    int times = 0;
    std::u16string ran;
    HostMenuItem parent = titledItem(u"Add");
    parent.submenu = [&] {
        ++times;
        HostMenuItem child = titledItem(u"Mine");
        child.action = [&](const HostMenuItem& self) {
            ran = self.title;
            popUp->removeAllItems();
        };
        return HostMenu{titledItem(u"Other"), child};
    };
    popUp->addItem(parent);
    host->open(*popUp);
    EXPECT_EQ(times, 0);
    EXPECT_TRUE(host->choose({u"Add", u"Mine"}));
    EXPECT_GE(times, 1);
    EXPECT_EQ(ran, u"Mine");
    EXPECT_TRUE(chosen.empty());
    EXPECT_FALSE(host->hasOpenMenu());
}

TEST_F(PopUpsConformance, AnEmptySubmenuHasNothingToChoose)
{
    HostMenuItem parent = titledItem(u"Add");
    parent.submenu = [] { return HostMenu{}; };
    popUp->addItem(parent);
    host->open(*popUp);
    EXPECT_FALSE(host->choose({u"Add", u"None"}));
    EXPECT_TRUE(chosen.empty());
    EXPECT_FALSE(host->hasOpenMenu());
}

TEST_F(PopUpsConformance, TheActionMayDestroyThePopUp)
{
    for (const bool hasSubmenu : {false, true}) {
        auto doomed = factory.makePopUpButton(described({10, 60, 120, 24}));
        doomed->setItems({titledItem(u"One"), titledItem(u"Two")});
        HostMenuItem parent = titledItem(u"Add");
        parent.submenu = [] { return HostMenu{titledItem(u"Mine")}; };
        if (hasSubmenu) doomed->addItem(parent);
        int actions = 0;
        doomed->setAction([&](HostControl&) {
            ++actions;
            doomed.reset();
        });
        root.addSubview(*doomed);
        host->handleEvents();
        host->open(*doomed);
        EXPECT_TRUE(host->choose({u"Two"}));
        EXPECT_EQ(actions, 1);
        EXPECT_FALSE(host->hasOpenMenu());
    }
}

TEST_F(PopUpsConformance, AnItemThatHasMovedIsChosenByItsTitle)
{
    host->open(*popUp);
    popUp->moveItems({3}, 0);
    EXPECT_TRUE(host->choose({u"CSS Keyword"}));
    EXPECT_THAT(chosen, ElementsAre(u"CSS Keyword"));
    EXPECT_EQ(popUp->indexOfSelectedItem(), 2);
}

TEST_F(PopUpsConformance, AnItemThatIsGoneIsNotChosen)
{
    host->open(*popUp);
    popUp->removeAllItems();
    popUp->addItemWithTitle(u"Other");
    static_cast<void>(host->choose({u"CSS Keyword"}));
    EXPECT_TRUE(chosen.empty());
    EXPECT_FALSE(host->hasOpenMenu());
}

TEST_F(PopUpsConformance, ThousandsOfItemsOpenAsWell)
{
    HostMenu items;
    for (int i = 0; i < 5000; ++i)
        items.push_back(titledItem(utf16FromUtf8("Item " + std::to_string(i))));
    popUp->setItems(std::move(items));
    host->open(*popUp);
    EXPECT_TRUE(host->choose({u"Item 4990"}));
    EXPECT_THAT(chosen, ElementsAre(u"Item 4990"));
    EXPECT_EQ(popUp->indexOfSelectedItem(), 4990);
}

TEST_F(PopUpsConformance, WithoutItemsOnlyTheNoticeIsSent)
{
    int notices = 0;
    popUp->setWillPopUp([&] { ++notices; });
    popUp->removeAllItems();
    host->open(*popUp);
    EXPECT_EQ(notices, 1);
    EXPECT_FALSE(host->hasOpenMenu());
}

/// What can happen to a pop-up while its menu is open. The menu is a list, or with submenus a menu.
class OpenMenuConformance : public PopUpsConformance, public testing::WithParamInterface<bool> {
protected:
    OpenMenuConformance()
    {
        if (GetParam()) {
            HostMenuItem parent = titledItem(u"Add");
            parent.submenu = [] { return HostMenu{titledItem(u"Mine")}; };
            popUp->addItem(parent);
        } else {
            for (int i = 0; i < 50; ++i)
                popUp->addItemWithTitle(u"More");
        }
        host->open(*popUp);
    }

    void expectClosed()
    {
        EXPECT_TRUE(host->runUntil([this] { return !host->hasOpenMenu(); }));
        host->handleEvents();
        EXPECT_TRUE(chosen.empty());
    }
};

TEST_P(OpenMenuConformance, ClosesWhenThePopUpGoesOutOfSight)
{
    ASSERT_TRUE(host->hasOpenMenu());
    popUp->setParked(true);
    expectClosed();
}

TEST_P(OpenMenuConformance, ClosesWhenThePopUpIsTakenOut)
{
    ASSERT_TRUE(host->hasOpenMenu());
    popUp->removeFromSuperview();
    expectClosed();
}

TEST_P(OpenMenuConformance, ClosesWhenThePopUpIsDestroyed)
{
    ASSERT_TRUE(host->hasOpenMenu());
    popUp.reset();
    expectClosed();
}

TEST_P(OpenMenuConformance, ClosesWhenTheWindowIsDestroyed)
{
    ASSERT_TRUE(host->hasOpenMenu());
    host->destroyWindow();
    expectClosed();
    popUp->selectItemAtIndex(1);
    popUp->addItemWithTitle(u"More");
}

INSTANTIATE_TEST_SUITE_P(Menus, OpenMenuConformance, testing::Bool(), [](const auto& tested) {
    return std::string(tested.param ? "WithSubmenus" : "Long");
});

}  // namespace
}  // namespace vantorel
