#include "paletteedit/PaletteMerge.h"

#include "EntryTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace vantorel {
namespace {

struct Row {
    const char* what;
    const char* base;
    const char* mine;
    const char* theirs;
    const char* expected;
    std::vector<std::u16string> contradictions = {};
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.what;
}

class PaletteMergeRows : public testing::TestWithParam<Row> {};

TEST_P(PaletteMergeRows, GivesTheExpectedEntries)
{
    const Row& row = GetParam();
    const PaletteMerge merge =
        mergePalettes(entriesFrom(row.base), entriesFrom(row.mine), entriesFrom(row.theirs));
    EXPECT_EQ(textOf(merge.entries), row.expected) << row.what;
    EXPECT_EQ(merge.contradictions, row.contradictions) << row.what;
}

INSTANTIATE_TEST_SUITE_P(
    Merges, PaletteMergeRows,
    testing::Values(
        Row{"nobody changed anything", "a=1 b=2", "a=1 b=2", "a=1 b=2", "a=1 b=2"},
        Row{"only I did", "a=1 b=2", "a=1 c=3", "a=1 b=2", "a=1 c=3"},
        Row{"only they did", "a=1 b=2", "a=1 b=2", "b=2", "b=2"},
        Row{"both did the same", "a=1", "a=1 b=2", "a=1 b=2", "a=1 b=2"},
        Row{"both added at the end", "a=1", "a=1 m=2", "a=1 t=3", "a=1 m=2 t=3"},
        Row{"both added at the start", "a=1", "m=2 a=1", "t=3 a=1", "m=2 t=3 a=1"},
        Row{"my addition follows its predecessor", "a=1 b=2 c=3", "a=1 m=9 b=2 c=3", "c=3 b=2 a=1",
            "c=3 b=2 a=1 m=9"},
        Row{"both added to an empty list", "", "m=1", "t=1", "m=1 t=1"},
        Row{"one name, one colour, added by both", "a=1", "a=1 n=5", "n=5 a=1", "n=5 a=1"},
        Row{"one name, two colours, added by both", "a=1", "a=1 n=5", "a=1 n=6", "a=1 n=6 n 2=5"},
        Row{"the free name is also taken", "", "n=5 n_2=1", "n=6", "n=6 n 3=5 n 2=1"},
        Row{"both removed it", "a=1 b=2 c=3", "a=1 c=3", "a=1 c=3 t=4", "a=1 c=3 t=4"},
        Row{"different entries were removed", "a=1 b=2 c=3", "b=2 c=3", "a=1 b=2", "b=2"},
        Row{"different entries were recoloured", "a=1 b=2", "a=9 b=2", "a=1 b=8", "a=9 b=8"},
        Row{"their change overrides my removal", "a=1 b=2", "b=2", "a=9 b=2", "a=9 b=2"},
        Row{"my change overrides their removal", "a=1 b=2", "a=9 b=2", "b=2", "a=9 b=2"},
        Row{"the same entry was recoloured", "a=1 b=2", "a=8 b=2", "a=9 b=2", "a=9 b=2", {u"a"}},
        Row{"a rename and a new colour", "a=1 b=2", "x=1 b=2", "a=9 b=2", "x=1 a=9 b=2"},
        Row{"two renames", "a=1 b=2", "x=1 b=2", "y=1 b=2", "x=1 y=1 b=2"},
        Row{"my move and their addition", "a=1 b=2 c=3", "c=3 a=1 b=2", "a=1 b=2 t=4 c=3",
            "c=3 a=1 b=2 t=4"},
        Row{"their move and my addition", "a=1 b=2 c=3", "a=1 m=4 b=2 c=3", "c=3 a=1 b=2",
            "c=3 a=1 m=4 b=2"},
        Row{"both moved", "a=1 b=2 c=3", "c=3 a=1 b=2", "b=2 a=1 c=3", "c=3 a=1 b=2"},
        Row{"they removed all, I added", "a=1 b=2", "a=1 b=2 m=3", "", "m=3"},
        Row{"I removed all, they changed one", "a=1 b=2", "", "a=1 b=9", "b=9"}));

TEST(PaletteMergeTest, NoAdditionOrNewColourIsEverLost)
{
    std::mt19937 random(20);
    const auto below = [&random](unsigned limit) { return random() % limit; };
    const auto shadeColor = [](unsigned long shade) {
        return entryWithShade("", static_cast<int>(shade)).color();
    };
    const auto changed = [&](PaletteEntries entries, const std::string& newName) {
        for (unsigned i = 0; i < 6; ++i) {
            const std::size_t at = below(static_cast<unsigned>(entries.size()) + 1);
            const auto place = entries.begin() + static_cast<std::ptrdiff_t>(at);
            switch (below(4)) {
                case 0:
                    entries.insert(place, entryWithShade(newName + std::to_string(i),
                                                         static_cast<int>(below(200))));
                    break;
                case 1:
                    if (place != entries.end()) entries.erase(place);
                    break;
                case 2:
                    if (place != entries.end())
                        *place = PaletteEntry(place->name(), shadeColor(below(256)));
                    break;
                default:
                    if (place != entries.end()) std::swap(*place, entries.front());
            }
        }
        return entries;
    };
    for (int round = 0; round < 3000; ++round) {
        const PaletteEntries base = entriesFrom("a=1 b=2 c=3 d=4 e=5 f=6");
        // In every second round both use the same names.
        const PaletteEntries mine = changed(base, "new");
        const PaletteEntries theirs = changed(base, round % 2 == 0 ? "new" : "other");
        const PaletteMerge merge = mergePalettes(base, mine, theirs);
        SCOPED_TRACE("mine " + textOf(mine) + "; theirs " + textOf(theirs) + "; merged " +
                     textOf(merge.entries));
        std::set<std::u16string> names;
        for (const PaletteEntry& entry : merge.entries)
            ASSERT_TRUE(names.insert(entry.name()).second);
        const auto contains = [](const PaletteEntries& entries, const PaletteEntry& entry) {
            return std::find(entries.begin(), entries.end(), entry) != entries.end();
        };
        for (const PaletteEntry& entry : theirs) {
            ASSERT_TRUE(contains(base, entry) || contains(merge.entries, entry));
        }
        for (const PaletteEntry& entry : mine) {
            if (contains(base, entry) || contains(merge.entries, entry)) continue;
            const bool reported =
                std::find(merge.contradictions.begin(), merge.contradictions.end(), entry.name()) !=
                merge.contradictions.end();
            const bool renamed =
                std::any_of(merge.entries.begin(), merge.entries.end(), [&](const auto& other) {
                    return other.color() == entry.color() && other.name() != entry.name() &&
                           other.name().starts_with(u"new");
                });
            ASSERT_TRUE(reported || renamed) << "an entry of mine was lost";
        }
    }
}

TEST(PaletteMergeTest, ThirtyThousandEntriesMerge)
{
    PaletteEntries base;
    for (int i = 0; i < 30000; ++i)
        base.push_back(entryWithShade("c" + std::to_string(i), i % 256));
    PaletteEntries mine = base;
    std::reverse(mine.begin(), mine.end());
    mine.push_back(entryWithShade("mine", 1));
    PaletteEntries theirs = base;
    theirs.insert(theirs.begin() + 15000, entryWithShade("theirs", 2));
    const PaletteMerge merge = mergePalettes(base, mine, theirs);
    ASSERT_EQ(merge.entries.size(), 30002U);
    EXPECT_EQ(merge.entries.back().name(), u"mine");
    EXPECT_EQ(merge.entries[15001].name(), u"theirs");
    EXPECT_EQ(merge.entries[15000].name(), u"c14999");
}

}  // namespace
}  // namespace vantorel
