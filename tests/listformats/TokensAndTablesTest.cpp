#include "listformats/DesignTokens.h"
#include "listformats/JsonListReader.h"
#include "listformats/ListFormats.h"
#include "listformats/ListReader.h"
#include "listformats/ListTexts.h"
#include "listformats/OfficeColorTable.h"
#include "listformats/XmlTags.h"

#include <gtest/gtest.h>

namespace {

using namespace vantorel;

std::string linesOf(std::string_view bytes, const std::string& file = "x.json")
{
    const auto read = readColorList(bytes, file);
    return read ? plainText(*read->list) : english(read.error());
}

TEST(DesignTokensTest, ValuesOfEveryKindAreRead)
{
    struct Row {
        const char* value;
        const char* code;
    };
    for (const Row& row : {
             Row{R"("#ff8000")", "#ff8000"},
             Row{"\"rgb(255 128 0)\"", "#ff8000"},
             Row{R"({"colorSpace": "srgb", "components": [1, 0.502, 0]})", "#ff8000"},
             Row{R"({"colorSpace": "srgb", "components": [1, 0.2, 0], "alpha": 0.5})", "#ff3300"},
             Row{R"({"colorSpace": "hsl", "components": [30, 100, 50]})", "#ff8000"},
             Row{R"({"colorSpace": "hwb", "components": ["none", 20, 80]})", "#333333"},
             Row{R"({"colorSpace": "oklch", "components": [0.637, 0.237, 25.331]})", "#fb2c36"},
             Row{R"({"colorSpace": "display-p3", "components": [1, 1, 1]})", "#ffffff"},
             Row{R"({"colorSpace": "unheard-of", "components": [1, 1, 1], "hex": "#123456"})",
                 "#123456"},
         }) {
        EXPECT_EQ(linesOf(std::string(R"({"a": {"x": {"$type": "color", "$value": )") + row.value +
                          "}}}"),
                  std::string(row.code) + "\tx\n")
            << row.value;
    }
}

TEST(DesignTokensTest, GroupsNameTheirTokens)
{
    const auto read = readColorList(
        R"({"brand": {"sea": {"500": {"$value": "#000001"}, "$type": "color"},
            "ink": {"$value": "#000002", "$type": "color"}, "$type": "dimension"}})",
        "file.tokens.json");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->list->name(), u"brand");
    EXPECT_EQ(plainText(*read->list), "#000001\tsea 500\n#000002\tink\n");
    const auto two =
        readColorList(R"({"a": {"x": {"$value": "#000001"}}, "b": {"x": {"$value": "#000002"}}})",
                      "file.tokens.json");
    ASSERT_TRUE(two);
    EXPECT_EQ(two->list->name(), u"file");
    EXPECT_EQ(plainText(*two->list), "#000001\ta x\n#000002\tb x\n");
    EXPECT_EQ(linesOf(R"({"sea": {"50": {"$value": "#000001"}, "deep": {"$value": "#000002"}}})"),
              "#000001\tsea 50\n#000002\tdeep\n")
        << "a number alone is not a name";
}

TEST(DesignTokensTest, ReferencesAreFollowedAndOtherTypesSkipped)
{
    const auto read = readColorList(
        R"({"$type": "color", "base": {"red": {"$value": "#ff0000"}},
            "use": {"alarm": {"$value": "{base.red}"}, "again": {"$value": "{use.alarm}"},
                    "lost": {"$value": "{base.blue}"}, "loop": {"$value": "{use.loop}"},
                    "group": {"$value": "{base}"},
                    "gap": {"$type": "dimension", "$value": {"value": 4, "unit": "px"}},
                    "fonts": {"$type": "fontFamily", "$value": ["a", "b"]}}})",
        "x.tokens");
    ASSERT_TRUE(read);
    EXPECT_EQ(plainText(*read->list),
              "#ff0000\tbase red\n#ff0000\tuse alarm\n#ff0000\tuse again\n");
    EXPECT_EQ(read->skipped, 5U);
}

TEST(DesignTokensTest, ListsComeBackWithAllNames)
{
    auto list = std::make_shared<HostColorList>(u"$A.b {c}");
    for (const char16_t* name :
         {u"red", u"Dark red", u"500", u"$x", u"a.b", u"a-b", u"{a}", u"-a-", u"\"", u"\u00e9"})
        list->setColor(HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1), name);
    const std::string json = designTokenListText(*list);
    const auto again = readColorList(json, "x.tokens.json");
    ASSERT_TRUE(again) << json;
    EXPECT_EQ(again->list->name(), list->name());
    EXPECT_EQ(again->list->allKeys(), list->allKeys());
    EXPECT_EQ(plainText(*again->list), plainText(*list));
    EXPECT_EQ(json.find("\"$x\""), json.rfind("\"$x\"")) << "no token may begin with $: " << json;
    EXPECT_NE(json.find("\"a-b-2\""), std::string::npos) << "the second name for a-b: " << json;
}

TEST(DesignTokensTest, DeepAndBrokenTextsAreRejected)
{
    const auto nested = [](std::size_t depth) {
        std::string text;
        for (std::size_t i = 1; i < depth; ++i)
            text += "{\"g\": ";
        text += R"({"$value": "red", "$type": "color"})";
        return text + std::string(depth - 1, '}');
    };
    EXPECT_TRUE(readDesignTokens(nested(deepestJson)));
    EXPECT_FALSE(readDesignTokens(nested(deepestJson + 1)));
    for (const char* text :
         {"", "[]", "{}", R"({"a": {"$value": )", "\"$value\"", R"([{"$value": "red"}])"}) {
        EXPECT_FALSE(readDesignTokens(text)) << text;
    }
    EXPECT_EQ(linesOf(R"({"colors": [{"name": "\"$value\"", "hex": "#ff0000"}]})"),
              "#ff0000\t\"$value\"\n")
        << "a list of our own that only mentions it";
}

TEST(OfficeColorTableTest, TablesOfOfficeProgramsAreRead)
{
    const auto read = readColorList(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE x [<!ENTITY a \"b\">]>\n"
        "<office:color-table xmlns:draw=\"http://openoffice.org/2000/drawing\">\n"
        "<!-- <draw:color draw:name=\"no\" draw:color=\"#000000\"/> -->"
        "<draw:color draw:name=\"A &lt;&#x1F3A8;&quot;&amp;a;\" draw:color='#FF8000'/>"
        "<draw:color draw:color=\"#000001\" draw:name=\"two\"></draw:color>"
        "<draw:color draw:name=\"odd\" draw:color=\"orange\"/></office:color-table>",
        "Office.soc");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->list->name(), u"Office");
    EXPECT_EQ(plainText(*read->list), "#ff8000\tA <\U0001F3A8\"&a;\n#000001\ttwo\n");
    EXPECT_EQ(read->skipped, 1U);
}

TEST(OfficeColorTableTest, ListsComeBack)
{
    auto list = std::make_shared<HostColorList>(u"L");
    for (const char16_t* name : {u"a", u"\"", u"'", u"&amp;", u"<b>", u"]]>", u"\u00e9", u" x "})
        list->setColor(HostColor::whiteColor(), name);
    const auto again = readColorList(officeColorTable(*list), "L.soc");
    ASSERT_TRUE(again);
    EXPECT_EQ(again->list->allKeys(), list->allKeys());
}

TEST(XmlTagsTest, EveryBrokenTextEnds)
{
    const std::string whole =
        "<?x?><!-- c --><![CDATA[ < ]]><a:b c='1' d=\"&#65;\" e f==/ =><g/></a:b>";
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const std::string text = whole.substr(0, length);
        XmlTags tags(text);
        int count = 0;
        while (tags.next())
            ++count;
        EXPECT_LE(count, 3);
    }
    XmlTags tags(whole);
    const auto first = tags.next();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->name, "b");
    EXPECT_EQ(first->attribute("c"), "1");
    EXPECT_EQ(first->attribute("d"), "A");
    EXPECT_EQ(first->attribute("f"), "");
}

TEST(ListFormatsTest, TheLongestEndingOfAFileCounts)
{
    EXPECT_EQ(listFormatOfFile("a.json")->name, "json");
    EXPECT_EQ(listFormatOfFile("a.Tokens.JSON")->name, "tokens");
    EXPECT_EQ(listFormatOfFile("tokens.json")->name, "json");
    EXPECT_EQ(withoutListEnding("a.b.tokens.json"), "a.b");
    EXPECT_EQ(withoutListEnding("a.b.GPL"), "a.b");
    EXPECT_EQ(withoutListEnding("a.b"), "a.b");
    for (const ListFormat& format : listFormats())
        EXPECT_EQ(format.mostColors < 100000, format.name == "aco") << format.name;
}

}  // namespace
