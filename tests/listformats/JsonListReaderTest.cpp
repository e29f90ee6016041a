#include "listformats/JsonListReader.h"

#include "listformats/ListReader.h"

#include <gtest/gtest.h>

#include "AllocatedBytes.h"

namespace {

using namespace vantorel;

/// What is read, as "LIST: NAME=CODE NAME=CODE -SKIPPED"; "not a list" if it is none.
std::string readingOf(const std::string& json)
{
    const auto found = readJsonList(json);
    if (!found) return "not a list";
    const auto ascii = [](const std::u16string& text) {
        return std::string(text.begin(), text.end());
    };
    std::string text = ascii(found->name) + ":";
    for (const auto& [color, name] : found->entries) {
        const auto rgb = color.calibratedRGB();
        text += ' ' + ascii(name) + (rgb->red > 0.5 ? "=red" : "=black");
    }
    if (found->skipped > 0) text += " -" + std::to_string(found->skipped);
    return text;
}

struct JsonRow {
    const char* json;
    const char* reading;
};

class JsonListReaderTest : public testing::TestWithParam<JsonRow> {};

TEST_P(JsonListReaderTest, EachFormIsRead)
{
    EXPECT_EQ(readingOf(GetParam().json), GetParam().reading);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, JsonListReaderTest,
    testing::Values(
        JsonRow{R"({"name": "L", "colors": [{"name": "a", "hex": "red"}, {"hex": "#000"}]})",
                "L: a=red =black"},
        JsonRow{R"({"colors": [{"name": "a", "hex": "red"}, {"name": "b"}, {"hex": "red"}]})",
                ": a=red =red -1"},
        JsonRow{R"({"colors": ["red", 1, null, [], ["red"], {"name": "x"}, {"hex": {}}]})",
                ": =red -6"},
        JsonRow{R"({"colors": {"a": "red", "b": true, "c": {"hex": "red"}}, "name": "L"})",
                "L: a=red -2"},
        JsonRow{R"(["red", {"hex": "black", "name": "b", "more": {"hex": "red"}}])",
                ": =red b=black"},
        JsonRow{R"({"b": "red", "a": "black", "name": "L", "size": 2})", ": b=red a=black -2"},
        JsonRow{R"({"name": "black", "a": ["red"]})", ": name=black -1"},
        // Of members with the same name, the last one counts, in the place of the first.
        JsonRow{R"({"a": "red", "b": "red", "a": "black"})", ": a=black b=red"},
        JsonRow{R"({"colors": ["red"], "colors": ["black", "black"]})", ": =black =black"},
        JsonRow{R"({"colors": [{"hex": "red", "hex": "black", "name": "a", "name": 1}]})",
                ": =black"},
        JsonRow{R"({"name": "L", "name": 1, "colors": []})", ":"},
        JsonRow{R"({"colors": ["red"], "colors": 1})", "not a list"},
        JsonRow{R"({"colors": "red"})", "not a list"}, JsonRow{R"("red")", "not a list"},
        JsonRow{"[\"red\"] []", "not a list"}, JsonRow{"[\"red\"", "not a list"},
        JsonRow{"[\"\xFF\"]", "not a list"}, JsonRow{"", "not a list"}, JsonRow{"{}", ":"},
        JsonRow{"[]", ":"}));

TEST(JsonListReaderTest, ATextThatIsNotAListIsRefusedWithAnExample)
{
    for (const char* text : {"red", "[", "{\"colors\": 1}"}) {
        const auto found = readJsonList(text);
        ASSERT_FALSE(found) << text;
        EXPECT_EQ(english(found.error()),
                  "it is not a JSON colour list; write "
                  R"({"name": NAME, "colors": [{"name": NAME, "hex": "#ff8000"}]})");
    }
}

TEST(JsonListLimitsTest, DeepTextsAreNotRead)
{
    const auto nested = [](std::size_t depth) {
        return "[\"red\", " + std::string(depth - 1, '[') + std::string(depth - 1, ']') + "]";
    };
    EXPECT_EQ(readingOf(nested(deepestJson)), ": =red -1");
    const auto tooDeep = readJsonList(nested(deepestJson + 1));
    ASSERT_FALSE(tooDeep);
    EXPECT_EQ(english(tooDeep.error()),
              "its arrays and objects are more than 64 deep; give a list of names and colours");
}

TEST(JsonListLimitsTest, BracketsTakeNoMemory)
{
    const std::string brackets(1'000'000, '[');
    const std::size_t before = allocatedBytes();
    EXPECT_FALSE(readColorList(brackets, "brackets.json"));
    EXPECT_LT(allocatedBytes() - before, 100'000U);
}

TEST(JsonListLimitsTest, WhatIsNotAColourIsNotKept)
{
    std::string json = "[\"red\"";
    for (int i = 0; i < 20'000; ++i)
        json += R"(,{"more": ["red", [1, 2, 3], {"more": "black"}]})";
    json += ']';
    const std::size_t before = allocatedBytes();
    EXPECT_EQ(readingOf(json), ": =red -20000");
    EXPECT_LT(allocatedBytes() - before, 10 * json.size());
}

/// If each name were compared with all names before it, this would take minutes.
TEST(JsonListLimitsTest, ObjectsMayHaveManyNames)
{
    std::string json = "{\"first\": \"red\"";
    for (int i = 0; i < 200'000; ++i)
        json += ",\"name of a colour " + std::to_string(i) + "\": \"black\"";
    const auto found = readJsonList(json + '}');
    ASSERT_TRUE(found);
    EXPECT_EQ(found->entries.size(), 200'001U);
    EXPECT_EQ(found->entries.back().second, u"name of a colour 199999");
}

}  // namespace
