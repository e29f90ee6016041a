#include "colorlists/ColorNamesPopUp.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

std::vector<std::u16string> titlesOf(const HostPopUpButton& popUp)
{
    std::vector<std::u16string> titles;
    for (const HostMenuItem& item : popUp.menu())
        titles.push_back(item.separator ? u"-" : item.title);
    return titles;
}

using Titles = std::vector<std::u16string>;

class ColorNamesPopUpTest : public testing::Test {
protected:
    std::shared_ptr<HostColorList> listWithKeys(const Titles& keys)
    {
        auto list = std::make_shared<HostColorList>(u"list");
        for (const std::u16string& key : keys)
            list->setColor(HostColor::blackColor(), key);
        return list;
    }

    HostPopUpButton _popUp{HostRect{}};
    ColorNamesPopUpFiller _filler;
};

TEST_F(ColorNamesPopUpTest, ListsTheKeysBelowASeparator)
{
    _filler.fill(_popUp, listWithKeys({u"b", u"a"}));
    EXPECT_EQ(titlesOf(_popUp), (Titles{u"No Match", u"-", u"b", u"a"}));
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 0);
    EXPECT_TRUE(_popUp.menu()[2].image.has_value());
    _filler.fill(_popUp, nullptr);
    EXPECT_EQ(titlesOf(_popUp), Titles{u"Empty"});
}

TEST_F(ColorNamesPopUpTest, RefillingRestoresOrderTitleAndSelection)
{
    const auto list = listWithKeys({u"a", u"b", u"c"});
    _filler.fill(_popUp, list);
    _filler.moveCloseEntriesUp(_popUp, *list, {u"c"});
    _popUp.setTitleOfItem(0, u"* c");
    _popUp.selectItemAtIndex(3);
    _filler.fill(_popUp, list);
    EXPECT_EQ(titlesOf(_popUp), (Titles{u"No Match", u"-", u"a", u"b", u"c"}));
    EXPECT_EQ(_popUp.indexOfSelectedItem(), 0);
    list->setColor(HostColor::whiteColor(), u"d");
    _filler.fill(_popUp, list);
    EXPECT_EQ(titlesOf(_popUp).back(), u"d");
}

TEST_F(ColorNamesPopUpTest, CloseEntriesMoveAboveTheSeparatorOnce)
{
    struct Row {
        Titles closeKeys;
        Titles expected;
    };
    const auto list = listWithKeys({u"a", u"b", u"c", u"d"});
    for (const auto& [closeKeys, expected] : {
             Row{{}, {u"No Match", u"-", u"a", u"b", u"c", u"d"}},
             Row{{u"b", u"d"}, {u"No Match", u"b", u"d", u"-", u"a", u"c"}},
             // The list's first key and keys that are not items stay where they are.
             Row{{u"a"}, {u"No Match", u"-", u"a", u"b", u"c", u"d"}},
             Row{{u"a", u"c"}, {u"No Match", u"c", u"-", u"a", u"b", u"d"}},
             Row{{u"x", u"No Match", u"d"}, {u"No Match", u"d", u"-", u"a", u"b", u"c"}},
             Row{{u"b", u"c", u"d"}, {u"No Match", u"b", u"c", u"d", u"-", u"a"}},
         }) {
        _filler.fill(_popUp, list);
        for (const char* opening : {"first", "second"}) {
            _filler.moveCloseEntriesUp(_popUp, *list, closeKeys);
            EXPECT_EQ(titlesOf(_popUp), expected) << opening;
        }
    }
}

TEST_F(ColorNamesPopUpTest, AKeyNamedNoMatchSelectsTheFirstItemWithThatTitle)
{
    const auto list = listWithKeys({u"a", u"No Match", u"b"});
    _filler.fill(_popUp, list);
    struct Row {
        std::size_t place;
        int index;
    };
    for (const auto& [place, index] : {Row{0, 2}, Row{1, 0}, Row{2, 4}}) {
        _filler.selectEntry(_popUp, *list, place);
        EXPECT_EQ(_popUp.indexOfSelectedItem(), index) << place;
    }
    _filler.moveCloseEntriesUp(_popUp, *list, {u"b"});
    _filler.selectEntry(_popUp, *list, 2);
    EXPECT_EQ(_popUp.titleOfSelectedItem(), u"b");
}

TEST_F(ColorNamesPopUpTest, NothingMovesIfTheFirstKeyIsTheTitleAboveTheKeys)
{
    const auto list = listWithKeys({u"* b", u"a", u"b"});
    _filler.fill(_popUp, list);
    _popUp.setTitleOfItem(0, u"* b");
    _filler.moveCloseEntriesUp(_popUp, *list, {u"b"});
    EXPECT_EQ(titlesOf(_popUp), (Titles{u"* b", u"-", u"* b", u"a", u"b"}));
}

TEST(MatchColorNameTest, ReturnsTheFirstEqualEntryOrElseAllCloseOnes)
{
    const auto list = std::make_shared<HostColorList>(u"list");
    const auto add = [&](const char16_t* key, int red) {
        list->setColor(HostColor::colorWithCalibratedRed(red / 255.0, 0, 0, 1), key);
    };
    add(u"close", 26);
    add(u"equal", 10);
    add(u"equal too", 10);
    add(u"far", 43);
    ColorListIndex index;
    index.update(list);
    struct Row {
        std::uint64_t red;
        std::optional<std::size_t> exactPlace;
        std::u16string title;
    };
    for (const auto& [red, exactPlace, title] : {
             Row{10, 1, u"No Match"},
             Row{11, {}, u"* close, equal, equal too"},
             Row{59, {}, u"* far"},
             Row{60, {}, u"No Match"},
         }) {
        QTXHexColorSpec color;
        color.setHexRed(red, 0, 0);
        const ColorNameMatch match = matchColorName(color, *list, index);
        EXPECT_EQ(match.exactPlace, exactPlace) << red;
        std::vector<std::u16string> closeKeys;
        for (const std::size_t place : match.closePlaces)
            closeKeys.push_back(list->allKeys()[place]);
        EXPECT_EQ(closeTitle(closeKeys), title) << red;
    }
}

}  // namespace
}  // namespace vantorel
