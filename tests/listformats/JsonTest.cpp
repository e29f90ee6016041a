#include "listformats/Json.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(JsonTest, TextsAreQuoted)
{
    std::string json;
    appendJson(json, std::string_view("a\"b\\c\n\x1F\x7F"));
    EXPECT_EQ(json, R"("a\"b\\c\u000a\u001f\u007f")");
    json.clear();
    appendJson(json, std::u16string_view(u"\u00e9"));
    EXPECT_EQ(json, "\"\u00e9\"");
}

TEST(JsonTest, KeysAreSeparatedByCommas)
{
    std::string json = "{";
    appendJsonKey(json, "a");
    json += "1";
    appendJsonKey(json, "b");
    json += "{";
    appendJsonKey(json, "c");
    json += "2}}";
    EXPECT_EQ(json, R"({"a":1,"b":{"c":2}})");
    std::string array = "[";
    appendJsonKey(array, "a");
    EXPECT_EQ(array, R"(["a":)");
}

}  // namespace
}  // namespace vantorel
