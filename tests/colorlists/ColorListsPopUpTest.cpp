#include "colorlists/ColorListsPopUp.h"

#include "testing/headless/HeadlessDesktop.h"
#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(ColorListsPopUpTest, AListWithAPatternAnywhereIsNotSolid)
{
    HeadlessDesktop desktop{{std::make_unique<MemoryFiles>(), 0.6, {}}};
    HeadlessColorListStore& store = desktop.colorLists();
    const std::u16string letters = u"abc";
    for (std::size_t pattern = 0; pattern <= letters.size(); ++pattern) {
        auto list = std::make_shared<HostColorList>(u"pattern " + letters.substr(pattern));
        for (std::size_t i = 0; i < letters.size(); ++i) {
            const bool isPattern = i == pattern;
            list->setColor(isPattern ? HostColor::patternColor() : HostColor::whiteColor(),
                           letters.substr(i, 1));
        }
        store.install(list);
        EXPECT_EQ(allColorsAreSolid(store, list->name()), pattern == letters.size()) << pattern;
    }
}

TEST(ColorListsPopUpTest, KeysWithoutAColourDoNotMakeAListAPattern)
{
    HeadlessDesktop desktop{{std::make_unique<MemoryFiles>(), 0.6, {}}};
    HeadlessColorListStore& store = desktop.colorLists();
    auto list = std::make_shared<HostColorList>(u"one colour");
    list->addKey(u"none");
    list->setColor(HostColor::whiteColor(), u"white");
    store.install(list);
    store.install(std::make_shared<HostColorList>(u"empty"));
    store.install(std::make_shared<HostColorList>(u""));
    EXPECT_TRUE(allColorsAreSolid(store, u"one colour"));
    EXPECT_FALSE(allColorsAreSolid(store, u"empty"));
    EXPECT_FALSE(allColorsAreSolid(store, u""));
    EXPECT_FALSE(allColorsAreSolid(store, u"missing"));
}

}  // namespace
}  // namespace vantorel
