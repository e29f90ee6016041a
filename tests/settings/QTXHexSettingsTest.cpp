#include "settings/QTXHexSettings.h"

#include "settings/SettingsKeys.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

TEST(QTXHexSettingsTest, NewSettingsHaveTheDefaults)
{
    const QTXHexSettings settings;
    EXPECT_EQ(settings.entryForm(), EntryForm::uppercase);
    EXPECT_TRUE(settings.usePoundSign());
    EXPECT_EQ(settings.hexColorList(), u"CSS Keyword");
    EXPECT_EQ(settings.activeColorLists(),
              (std::vector<std::u16string>{u"Browser Safe", u"CSS Keyword", u"SVG Keyword"}));
    EXPECT_EQ(settings.nColorCubeRings(), 8);
    EXPECT_TRUE(settings.codeSnippets().empty());
    EXPECT_EQ(settings.codeSnippetName(), std::nullopt);
}

TEST(QTXHexSettingsTest, TheDictionaryKeysAreInOrder)
{
    QTXHexSettings settings;
    settings.setCodeSnippetName(u"VBasic");
    settings.setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    std::vector<std::u16string> keys;
    const PropertyList dictionary = settings.propertyListRepresentation();
    for (const auto& [key, value] : *dictionary.dictionary())
        keys.push_back(key);
    EXPECT_EQ(keys,
              (std::vector<std::u16string>{u"ComponentDisplay", u"CodeSnippetName", u"CodeDragType",
                                           u"PickModeColorLists", u"AddedColorLists",
                                           u"HexColorLlst", u"EntryForm", u"NColorCubeRings",
                                           u"UsePoundSign", u"CreateColorLists", u"CodeSnippets"}));
    EXPECT_EQ(*dictionary.stringForKey(PickModeColorListsKey), u"Slider");
}

TEST(QTXHexSettingsTest, AFreshDictionaryHasNoSnippetsAndLoadsThem)
{
    const PropertyList dictionary = QTXHexSettings().propertyListRepresentation();
    EXPECT_EQ(dictionary.valueForKey(CodeSnippetNameKey), nullptr);
    EXPECT_EQ(dictionary.valueForKey(CodeSnippetsKey), nullptr);
    QTXHexSettings loaded;
    loaded.loadPropertyListRepresentation(dictionary);
    EXPECT_EQ(loaded.codeSnippets(), QTXCodeSnippet::buildDefaultCodeSnippets());
    EXPECT_EQ(loaded.codeSnippetName(), u"ObjC fraction");
}

TEST(QTXHexSettingsTest, EverySettingSurvivesARoundTrip)
{
    QTXHexSettings settings;
    settings.setEntryForm(EntryForm::lowercase);
    settings.setUsePoundSign(false);
    settings.setHexColorList(u"Mine \u20ac");
    settings.activeColorLists() = {u"Mine \u20ac", u"x"};
    settings.setPickViewMode(PickViewMode::wheel);
    settings.setNColorCubeRings(-5);
    settings.setComponentDisplay(ComponentDisplay::codeSnippet);
    settings.setCodeSnippets(std::vector{QTXCodeSnippet(u"n", u"%d", u"rgbFixed")});
    settings.setCodeSnippetName(u"n");
    settings.setCreateColorLists(false);
    settings.setCodeDragType(CodeDragType::rgbCSS);
    QTXHexSettings loaded;
    loaded.loadPropertyListRepresentation(settings.propertyListRepresentation());
    EXPECT_EQ(loaded.propertyListRepresentation(), settings.propertyListRepresentation());
    EXPECT_EQ(loaded.nColorCubeRings(), -5);
}

struct RingRow {
    const char16_t* text;
    std::int64_t rings;
};

void PrintTo(const RingRow& row, std::ostream* out)
{
    *out << testing::PrintToString(std::u16string(row.text));
}

class RingCountTest : public testing::TestWithParam<RingRow> {};

TEST_P(RingCountTest, IsReadFromTheLeadingInteger)
{
    QTXHexSettings settings;
    settings.loadPropertyListRepresentation(
        Dictionary{{NColorCubeRingsKey, std::u16string(GetParam().text)}});
    EXPECT_EQ(settings.nColorCubeRings(), GetParam().rings);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, RingCountTest,
    testing::Values(RingRow{u"0", 0}, RingRow{u"  12abc", 12}, RingRow{u"-5", -5},
                    RingRow{u"+7", 7}, RingRow{u"text", 0}, RingRow{u"", 0},
                    RingRow{u"1000000000", 1000000000},
                    RingRow{u"9223372036854775799", 9223372036854775799},
                    RingRow{u"9223372036854775800", 9223372036854775800},
                    RingRow{u"9223372036854775807", std::numeric_limits<std::int64_t>::max()},
                    RingRow{u"-9223372036854775800", -9223372036854775800},
                    RingRow{u"9223372036854775808", std::numeric_limits<std::int64_t>::max()},
                    RingRow{u"\t\n\v\f\r7", 7}, RingRow{u"\u000e7", 0}, RingRow{u"\b7", 0},
                    RingRow{u"- 7", 0}, RingRow{u"--7", 0}, RingRow{u"190", 190},
                    RingRow{u"1:2", 1}, RingRow{u"1/2", 1},
                    RingRow{u"99999999999999999999", std::numeric_limits<std::int64_t>::max()},
                    RingRow{u"-99999999999999999999", std::numeric_limits<std::int64_t>::min()}));

TEST(QTXHexSettingsTest, ValuesOfTheWrongKindCountAsMissing)
{
    Dictionary wrong;
    for (const char16_t* key : {ComponentDisplayKey, CodeSnippetNameKey, CodeDragTypeKey,
                                PickModeColorListsKey, HexColorLlstKey, EntryFormKey,
                                NColorCubeRingsKey, UsePoundSignKey, CreateColorListsKey}) {
        wrong.emplace_back(key, Array{u"x"});
    }
    wrong.emplace_back(AddedColorListsKey, u"text");
    wrong.emplace_back(CodeSnippetsKey, u"text");
    QTXHexSettings settings;
    settings.loadPropertyListRepresentation(wrong);
    QTXHexSettings expected;
    expected.loadPropertyListRepresentation(Dictionary{});
    EXPECT_EQ(settings.propertyListRepresentation(), expected.propertyListRepresentation());
}

TEST(QTXHexSettingsTest, AnArrayOfListsReplacesTheActiveOnes)
{
    QTXHexSettings settings;
    settings.loadPropertyListRepresentation(
        Dictionary{{AddedColorListsKey, Array{u"a", Array{}, u"b"}}});
    EXPECT_EQ(settings.activeColorLists(), (std::vector<std::u16string>{u"a", u"b"}));
    settings.loadPropertyListRepresentation(Dictionary{{AddedColorListsKey, Array{}}});
    EXPECT_TRUE(settings.activeColorLists().empty());
}

TEST(QTXHexSettingsTest, ACopyKeepsTheOddRules)
{
    QTXHexSettings settings;
    settings.setHexColorList(u"Mine");
    settings.activeColorLists() = {u"Mine"};
    settings.setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    settings.setNColorCubeRings(5);
    const QTXHexSettings copy = settings.copyWithZone();
    EXPECT_EQ(copy.hexColorList(), u"CSS Keyword");
    EXPECT_EQ(copy.activeColorLists().size(), 4U);
    EXPECT_TRUE(copy.codeSnippets().empty());
    EXPECT_EQ(copy.nColorCubeRings(), 5);
}

TEST(QTXHexSettingsTest, ACopyHasTheOtherSettings)
{
    QTXHexSettings settings;
    settings.setEntryForm(EntryForm::lowercase);
    settings.setUsePoundSign(false);
    settings.setPickViewMode(PickViewMode::wheel);
    settings.setNColorCubeRings(5);
    settings.setComponentDisplay(ComponentDisplay::fraction);
    settings.setCodeSnippetName(u"VBasic");
    settings.setCreateColorLists(false);
    settings.setCodeDragType(CodeDragType::rgbCSS);
    QTXHexSettings copy = settings.copyWithZone();
    copy.activeColorLists() = settings.activeColorLists();
    EXPECT_EQ(copy.propertyListRepresentation(), settings.propertyListRepresentation());
}

TEST(QTXHexSettingsTest, TheFirstSnippetWithTheNameIsSelected)
{
    QTXHexSettings settings;
    settings.setCodeSnippets(
        std::vector{QTXCodeSnippet(u"a", u"1", u""), QTXCodeSnippet(u"a", u"2", u"")});
    settings.setCodeSnippetName(u"a");
    EXPECT_EQ(settings.codeSnippet().formatStringSnippet(), u"1");
    settings.setCodeSnippetName(u"A");
    EXPECT_EQ(settings.codeSnippet().nameSnippet(), u"ObjC fraction");
}

TEST(QTXHexSettingsTest, TheFirstCallFixesTheSnippetNamesOfTheProcess)
{
    QTXHexSettings settings;
    const auto names = settings.codeSnippetNames();
    EXPECT_EQ(settings.codeSnippets().size(), 12U);
    settings.setCodeSnippets(std::vector{QTXCodeSnippet(u"later", u"", u"")});
    EXPECT_EQ(settings.codeSnippetNames(), names);
}

}  // namespace
}  // namespace vantorel
