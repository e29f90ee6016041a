#include "color/QTXHexColorSpec.h"
#include "colorlists/ColorSort.h"
#include "colorlists/PaletteFileStore.h"
#include "colorlists/QTXHexColorLists.h"
#include "testing/headless/MemoryFiles.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

/// The built-in lists are found or built once in a process; every test here runs in its own.
class BuiltInListsTest : public testing::Test {
protected:
    MemoryFiles _files;
    PaletteFileStore _store{_files};
};

/// FNV-1a over a line "key#RRGGBB" for each entry.
std::uint64_t checksum(const HostColorList& list)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        QTXHexColorSpec spec;
        spec.setColorHexColorSpec(list.colorAtIndex(i));
        const std::string line =
            utf8FromUtf16(list.allKeys()[i]) + "#" +
            utf8FromUtf16(spec.fullStringHexColorSpecWithEntryForm(EntryForm::uppercase)) + "\n";
        for (const char c : line) {
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
        }
    }
    return hash;
}

TEST_F(BuiltInListsTest, HaveTheExpectedEntries)
{
    checkAndInstallColorLists(_store);
    struct Row {
        BuiltInList token;
        std::size_t count;
        std::uint64_t checksum;
    };
    for (const auto& [token, count, sum] :
         {Row{BuiltInList::cssKeyword, 17, 0xde2537b158dcdd50},
          Row{BuiltInList::browserSafe, 216, 0x665629c2a207ef6d},
          Row{BuiltInList::svgKeyword, 146, 0x0a07350fc0eed852}}) {
        const auto list = hexColorListWithToken(token);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->allKeys().size(), count);
        EXPECT_EQ(checksum(*list), sum) << utf8FromUtf16(list->name());
    }
}

TEST_F(BuiltInListsTest, AreSavedWithTheUsersListsAndReadBackUnchanged)
{
    checkAndInstallColorLists(_store);
    PaletteFileStore other(_files);
    EXPECT_EQ(other.availableColorLists(), allHexColorListNames());
    for (const std::u16string& name : allHexColorListNames()) {
        const auto read = other.colorListNamed(name);
        const auto built = hexColorListWithToken(hexColorListFromString(name));
        ASSERT_NE(read, nullptr);
        EXPECT_NE(read, built);
        EXPECT_EQ(checksum(*read), checksum(*built));
        for (const auto& key : built->allKeys()) {
            EXPECT_EQ(read->colorWithKey(key), built->colorWithKey(key));
        }
    }
}

TEST_F(BuiltInListsTest, AnInstalledListIsUsedUnchanged)
{
    auto mine = std::make_shared<HostColorList>(u"CSS Keyword");
    mine->setColor(HostColor::blackColor(), u"only one");
    _store.writeColorList(mine);
    buildCSSKeywordList(_store);
    EXPECT_EQ(hexColorListWithToken(BuiltInList::cssKeyword), mine);
    EXPECT_EQ(hexColorListWithToken(BuiltInList::cssKeywordAgain), mine);
    EXPECT_EQ(mine->allKeys().size(), 1U);
}

TEST_F(BuiltInListsTest, AreUsableInThisProcessWhenTheyCannotBeSaved)
{
    _files.failWrites(true);
    checkAndInstallColorLists(_store);
    ASSERT_NE(hexColorListWithToken(BuiltInList::browserSafe), nullptr);
    EXPECT_TRUE(_store.availableColorLists().empty());
}

TEST_F(BuiltInListsTest, KeepTheirOwnSpellingsAndValues)
{
    checkAndInstallColorLists(_store);
    struct Row {
        BuiltInList token;
        const char16_t* key;
        std::optional<std::uint32_t> rgb;
    };
    for (const auto& [token, key, rgb] : {Row{BuiltInList::cssKeyword, u"orange", 0xFFA580},
                                          Row{BuiltInList::browserSafe, u"#FF0000", 0xFF0000},
                                          Row{BuiltInList::browserSafe, u"#ff0000", {}},
                                          Row{BuiltInList::svgKeyword, u"orange", 0xFFA500},
                                          Row{BuiltInList::svgKeyword, u"sliver", 0xC0C0C0},
                                          Row{BuiltInList::svgKeyword, u"silver", {}},
                                          Row{BuiltInList::svgKeyword, u"stealblue", 0x4682B4},
                                          Row{BuiltInList::svgKeyword, u"steelblue", {}},
                                          Row{BuiltInList::svgKeyword, u"gold", 0xFFFD00},
                                          Row{BuiltInList::svgKeyword, u"darksalmon", 0xE99671},
                                          Row{BuiltInList::svgKeyword, u"darkkhaki", 0xBDB76D},
                                          Row{BuiltInList::svgKeyword, u"lightgray", 0xD3D3D3},
                                          Row{BuiltInList::svgKeyword, u"lightgrey", {}}}) {
        std::optional<HostColor> expected;
        if (rgb) {
            QTXHexColorSpec spec;
            spec.setHexRed(*rgb >> 16, (*rgb >> 8) & 0xFF, *rgb & 0xFF);
            expected = spec.colorHexColorSpec();
        }
        EXPECT_EQ(hexColorListWithToken(token)->colorWithKey(key), expected)
            << utf8FromUtf16(key) << " of " << static_cast<int>(token);
    }
    EXPECT_EQ(hexColorListWithToken(BuiltInList::browserSafe)->allKeys()[6], u"#FF0000");
    EXPECT_EQ(hexColorListWithToken(BuiltInList::cssKeyword)->allKeys().back(), u"orange");
    EXPECT_EQ(hexColorListWithToken(BuiltInList::cssKeyword),
              hexColorListWithToken(BuiltInList::cssKeywordAgain));
}

TEST(HexColorListNamesTest, MapToTheirTokens)
{
    struct Row {
        BuiltInList token;
        std::optional<std::u16string> name;
    };
    for (const auto& [token, name] :
         {Row{BuiltInList{11}, {}}, Row{BuiltInList::browserSafe, u"Browser Safe"},
          Row{BuiltInList::cssKeyword, u"CSS Keyword"},
          Row{BuiltInList::svgKeyword, u"SVG Keyword"},
          Row{BuiltInList::cssKeywordAgain, u"CSS Keyword"}, Row{BuiltInList{16}, {}},
          Row{BuiltInList{-1}, {}}}) {
        EXPECT_EQ(nameFromHexColorList(token), name) << static_cast<int>(token);
    }
    EXPECT_EQ(hexColorListFromString(u"Browser Safe"), BuiltInList::browserSafe);
    EXPECT_EQ(hexColorListFromString(u"CSS Keyword"), BuiltInList::cssKeyword);
    EXPECT_EQ(hexColorListFromString(u"SVG Keyword"), BuiltInList::svgKeyword);
    for (const char16_t* unknown : {u"", u"browser safe", u"SVG Keyword ", u"any"}) {
        EXPECT_EQ(hexColorListFromString(unknown), BuiltInList::cssKeyword);
    }
}

TEST_F(BuiltInListsTest, NoTokenHasAListBeforeItIsBuilt)
{
    for (const int token : {11, 12, 13, 14, 15, 16})
        EXPECT_EQ(hexColorListWithToken(BuiltInList{token}), nullptr);
}

struct SortRow {
    std::uint32_t first, second;
    int result;
};

void PrintTo(const SortRow& row, std::ostream* out)
{
    *out << std::hex << row.first << " and " << row.second;
}

class ColorSortTest : public testing::TestWithParam<SortRow> {};

TEST_P(ColorSortTest, OrdersByGreenThenBlueThenRed)
{
    const auto color = [](std::uint32_t rgb) {
        QTXHexColorSpec spec;
        spec.setHexRed(rgb >> 16, (rgb >> 8) & 0xFF, rgb & 0xFF);
        return spec.colorHexColorSpec();
    };
    EXPECT_EQ(colorSortFunc(color(GetParam().first), color(GetParam().second)), GetParam().result);
    EXPECT_EQ(colorSortFunc(color(GetParam().second), color(GetParam().first)), -GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Colors, ColorSortTest,
                         testing::Values(SortRow{0x00F000, 0x00E0FF, -1},
                                         SortRow{0x0F0F0F, 0x000000, 0},
                                         SortRow{0xFF0010, 0x000020, 1},
                                         SortRow{0x100000, 0x000000, -1}));

TEST(ColorSortTest, EqualEntriesKeepTheirOrderAndPatternsCountAsBlack)
{
    HostColorList list(u"x");
    list.setColor(HostColor::patternColor(), u"p");
    list.setColor(HostColor::blackColor(), u"b");
    list.setColor(HostColor::whiteColor(), u"w");
    list.setColor(HostColor::colorWithCalibratedRed(0.01, 0.01, 0.01, 1), u"n");
    EXPECT_EQ(sortedColorIndexes(list), (std::vector<std::size_t>{2, 0, 1, 3}));
    EXPECT_EQ(colorSortFunc(u"missing", u"b", list), 0);
}

}  // namespace
}  // namespace vantorel
