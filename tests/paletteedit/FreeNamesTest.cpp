#include "paletteedit/FreeNames.h"

#include "EntryTexts.h"
#include "colorlists/PaletteFile.h"
#include "paletteedit/ProposedName.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

TEST(FreeNamesTest, ATakenNameGetsTheNextNumber)
{
    FreeNames names;
    for (const char16_t* expected : {u"Red", u"Red 2", u"Red 3"})
        EXPECT_EQ(names.take(u"Red"), expected);
    EXPECT_EQ(names.take(u"Red 2"), u"Red 4") << "not \"Red 2 2\"";
    EXPECT_EQ(names.take(u"Red 9"), u"Red 9");
    EXPECT_EQ(names.take(u"Red 9"), u"Red 10");
    struct Row {
        const char16_t* wanted;
        const char16_t* expected;
    };
    for (const Row& row : {Row{u"Web 2.0", u"Web 2.0 2"}, Row{u"7", u"7 2"}, Row{u" 7", u" 7 2"},
                           Row{u"Red 02", u"Red 02 2"}, Row{u"Red 9999999999", u"Red 9999999999 2"},
                           Row{u"Red ", u"Red  2"}, Row{u"", u" 2"}}) {
        FreeNames others;
        EXPECT_EQ(others.take(row.wanted), row.wanted);
        EXPECT_EQ(others.take(row.wanted), row.expected);
    }
}

TEST(FreeNamesTest, ThirtyThousandEqualNamesBecomeUnique)
{
    FreeNames names;
    std::unordered_set<std::u16string> seen;
    for (int i = 0; i < 30000; ++i)
        EXPECT_TRUE(seen.insert(names.take(u"Grey")).second);
    EXPECT_TRUE(seen.contains(u"Grey 30000"));
    EXPECT_EQ(names.take(u"Grey 30000"), u"Grey 30001");
}

TEST(FreeNamesTest, ATidyNameReadsBackFromAFileUnchanged)
{
    for (const std::u16string& typed :
         {std::u16string(u"Red"), std::u16string(u"  Red\t"), std::u16string(u"a\nb\r\nc"),
          std::u16string(u"a\0b", 3), std::u16string(1, char16_t{0xD800}),
          std::u16string(u"\U0001F3A8"), std::u16string(u"# not a comment"),
          std::u16string(u"Name: x"), std::u16string(u"1 2 3"), std::u16string(u"\u202Eabc"),
          std::u16string(100000, u'x')}) {
        const std::u16string name = tidyName(typed);
        ASSERT_FALSE(name.empty());
        const auto reading =
            readPalette(paletteText(*listOfEntries(name, {{name, HostColor::whiteColor()}})), u"");
        ASSERT_TRUE(reading);
        EXPECT_EQ(reading->list->name(), name);
        EXPECT_EQ(reading->list->allKeys(), std::vector<std::u16string>{name});
    }
    for (const std::u16string& typed :
         {std::u16string(), std::u16string(u" \t\n "), std::u16string(u"\0", 1)}) {
        EXPECT_EQ(tidyName(typed), u"");
    }
}

TEST(ProposedNameTest, IsTheNearestColourNameOrTheHexCode)
{
    const PaletteEntries entries{
        {u"Red", HostColor::colorWithCalibratedRed(1, 0, 0, 1)},
        {u"Dark red", HostColor::colorWithCalibratedRed(0.95, 0, 0, 1)},
        {u"Blue", HostColor::colorWithCalibratedRed(0, 0, 1, 1)},
    };
    struct Row {
        HostColor color;
        const char16_t* expected;
    };
    for (const Row& row :
         {Row{HostColor::colorWithCalibratedRed(1, 0, 0, 0.5), u"Red 2"},
          Row{HostColor::colorWithCalibratedRed(0.96, 0, 0, 1), u"Dark red 2"},
          Row{HostColor::colorWithCalibratedRed(0, 1, 0.5, 1), u"#00FF80"},
          Row{HostColor::colorWithCalibratedRed(std::nan(""), 2, -1, 1), u"#00FF00"},
          Row{HostColor::patternColor(), u"#000000"}}) {
        EXPECT_EQ(proposedName(row.color, entries), row.expected);
    }
    EXPECT_EQ(proposedName(HostColor::whiteColor(), {}), u"#FFFFFF");
    EXPECT_EQ(proposedName(HostColor::colorWithCalibratedRed(0, 1, 0, 1),
                           {{u"#00FF00", HostColor::blackColor()}}),
              u"#00FF00 2");
}

TEST(ProposedNameTest, CodesAndTheUntitledOfFilesAreNotNames)
{
    struct Row {
        const char16_t* name;
        bool isCode;
    };
    for (const Row& row :
         {Row{u"#ff8000", true}, Row{u"#FF8000 2", true}, Row{u"#f80", true},
          Row{u"#ff8000cc", true}, Row{u"rgb(255, 128, 0)", true},
          Row{u"oklch(70% 0.2 50) 3", true}, Row{u"Untitled", true}, Row{u"Untitled 12", true},
          Row{u"", true}, Row{u"  ", true}, Row{u"red", false}, Row{u"Red 2", false},
          Row{u"#1", false}, Row{u"#ff8000 fire", false}, Row{u"#ff8000 0", false},
          Row{u"ff8000", false}, Row{u"Untitled sketch", false}, Row{u"7", false},
          Row{u"rgb(", false}}) {
        EXPECT_EQ(isOnlyCode(row.name), row.isCode) << utf8FromUtf16(row.name);
    }
    EXPECT_FALSE(isOnlyCode(u"#" + std::u16string(100000, u'f')));
}

TEST(ProposedNameTest, WhoNamesACodeStartsFromTheNearestNameOfCSS)
{
    const PaletteEntries entries{
        {u"#FE0101", HostColor::colorWithCalibratedRed(254 / 255.0, 1 / 255.0, 1 / 255.0, 1)},
        {u"Untitled", HostColor::colorWithCalibratedRed(0, 0, 1, 1)},
        {u"blue", HostColor::blackColor()},
        {u"my sea", HostColor::colorWithCalibratedRed(0, 0, 1, 1)},
    };
    EXPECT_EQ(nameToStartFrom(entries, 0), u"red");
    EXPECT_EQ(nameToStartFrom(entries, 1), u"blue 2") << "a name of the list is not repeated";
    EXPECT_EQ(nameToStartFrom(entries, 2), u"blue");
    EXPECT_EQ(nameToStartFrom(entries, 3), u"my sea");
}

}  // namespace
}  // namespace vantorel
