#include "paletteedit/EntryEdits.h"

#include "EntryTexts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace vantorel {
namespace {

using Places = std::vector<std::size_t>;

const PaletteEntries five = entriesFrom("a=1 b=2 c=3 d=4 e=5");

TEST(EntryEditsTest, EntriesAreInsertedAtTheGivenPosition)
{
    struct Row {
        std::size_t before;
        const char* inserted;
        const char* expected;
        Places places;
    };
    for (const Row& row : {Row{0, "x=9", "x=9 a=1 b=2 c=3 d=4 e=5", {0}},
                           Row{2, "x=9 y=8", "a=1 b=2 x=9 y=8 c=3 d=4 e=5", {2, 3}},
                           Row{99, "a=9", "a=1 b=2 c=3 d=4 e=5 a 2=9", {5}}}) {
        const EntryEdit edit = withInserted(five, row.before, entriesFrom(row.inserted));
        EXPECT_EQ(textOf(edit.entries), row.expected);
        EXPECT_EQ(edit.places, row.places);
    }
    const EntryEdit unnamed = withInserted({}, 0, {{u" \n", HostColor::whiteColor()}});
    EXPECT_EQ(unnamed.entries.front().name(), u"#FFFFFF");
}

TEST(EntryEditsTest, SeveralEntriesAreRemoved)
{
    EXPECT_EQ(textOf(withRemoved(five, {4, 0, 2}).entries), "b=2 d=4");
    EXPECT_EQ(textOf(withRemoved(five, {7, 3, 3}).entries), "a=1 b=2 c=3 e=5");
    EXPECT_EQ(withRemoved(five, {}).entries, five);
}

TEST(EntryEditsTest, EntriesMoveTogether)
{
    struct Row {
        Places places;
        std::size_t before;
        const char* expected;
        Places now;
    };
    for (const Row& row :
         {Row{{0}, 3, "b=2 c=3 a=1 d=4 e=5", {2}}, Row{{4}, 0, "e=5 a=1 b=2 c=3 d=4", {0}},
          Row{{3, 1}, 5, "a=1 c=3 e=5 b=2 d=4", {3, 4}},
          Row{{0, 4}, 2, "b=2 a=1 e=5 c=3 d=4", {1, 2}}, Row{{2}, 2, "a=1 b=2 c=3 d=4 e=5", {2}},
          Row{{2}, 3, "a=1 b=2 c=3 d=4 e=5", {2}}, Row{{1}, 99, "a=1 c=3 d=4 e=5 b=2", {4}},
          Row{{99}, 0, "a=1 b=2 c=3 d=4 e=5", {}}}) {
        const EntryEdit edit = withMoved(five, row.places, row.before);
        EXPECT_EQ(textOf(edit.entries), row.expected);
        EXPECT_EQ(edit.places, row.now);
    }
}

TEST(EntryEditsTest, MovesStopAtTheEnds)
{
    struct Row {
        Places places;
        int step;
        const char* expected;
        Places now;
    };
    for (const Row& row :
         {Row{{1, 2}, -1, "b=2 c=3 a=1 d=4 e=5", {0, 1}},
          Row{{0, 1, 3}, -1, "a=1 b=2 d=4 c=3 e=5", {0, 1, 2}},
          Row{{0}, -1, "a=1 b=2 c=3 d=4 e=5", {0}}, Row{{4}, 1, "a=1 b=2 c=3 d=4 e=5", {4}},
          Row{{0, 2}, 1, "b=2 a=1 d=4 c=3 e=5", {1, 3}},
          Row{{4, 2}, 1, "a=1 b=2 d=4 c=3 e=5", {3, 4}}}) {
        const EntryEdit edit = withStepped(five, row.places, row.step);
        EXPECT_EQ(textOf(edit.entries), row.expected);
        EXPECT_EQ(edit.places, row.now);
    }
    EXPECT_TRUE(withStepped({}, {0}, -1).entries.empty());
    EXPECT_TRUE(withStepped({}, {0}, 1).entries.empty());
}

TEST(EntryEditsTest, ARenamedEntryKeepsItsPlaceAndColour)
{
    EXPECT_EQ(textOf(withRenamed(five, 1, u" new\n").entries), "a=1 new=2 c=3 d=4 e=5");
    EXPECT_EQ(textOf(withRenamed(five, 1, u"a").entries), "a=1 a 2=2 c=3 d=4 e=5");
    for (const char16_t* nothing : {u"", u"  ", u"b"})
        EXPECT_EQ(withRenamed(five, 1, nothing).entries, five);
    EXPECT_EQ(withRenamed(five, 99, u"x").entries, five);
}

TEST(EntryEditsTest, ColoursAreRoundedAsInAFile)
{
    const EntryEdit edit = withRecolored(
        five, {1, 3, 9}, HostColor::colorWithCalibratedRed(1 / 3.0, 7, std::nan(""), 0.25));
    EXPECT_EQ(edit.places, (Places{1, 3}));
    for (const std::size_t place : edit.places) {
        EXPECT_EQ(edit.entries[place].name(), five[place].name());
        EXPECT_EQ(edit.entries[place].color(),
                  HostColor::colorWithCalibratedRed(85 / 255.0, 1, 0, 1));
    }
    EXPECT_EQ(edit.entries[0], five[0]);
    EXPECT_EQ(PaletteEntry(u"p", HostColor::patternColor()).color(), HostColor::blackColor());
}

TEST(EntryEditsTest, ThirtyThousandEntriesAreAllKept)
{
    PaletteEntries many;
    Places odd;
    for (std::size_t i = 0; i < 30000; ++i) {
        many.push_back(entryWithShade("colour " + std::to_string(i), static_cast<int>(i % 256)));
        if (i % 2 == 1) odd.push_back(i);
    }
    const auto names = [](const PaletteEntries& entries) {
        std::set<std::u16string> result;
        for (const PaletteEntry& entry : entries)
            result.insert(entry.name());
        return result;
    };
    EXPECT_EQ(names(withMoved(many, odd, 0).entries), names(many));
    EXPECT_EQ(withMoved(many, odd, 0).entries[14999].name(), u"colour 29999");
    EXPECT_EQ(names(withStepped(many, odd, -1).entries), names(many));
    EXPECT_EQ(withRemoved(many, odd).entries.size(), 15000U);
    const EntryEdit doubled = withInserted(many, 10, many);
    EXPECT_EQ(names(doubled.entries).size(), 60000U) << "all names are unique";
}

}  // namespace
}  // namespace vantorel
