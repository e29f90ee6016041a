#include "text/Trimming.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using namespace std::string_view_literals;

bool isX(char c)
{
    return c == 'x';
}

struct TrimmingRow {
    std::string_view text;
    std::string_view withoutLeading;
    std::string_view withoutTrailing;
    std::string_view trimmed;
};

TEST(TrimmingTest, BlanksAreTrimmedFromBothEnds)
{
    const TrimmingRow rows[] = {
        {"", "", "", ""},
        {"x", "", "", ""},
        {"xxx", "", "", ""},
        {"a", "a", "a", "a"},
        {"xa", "a", "xa", "a"},
        {"ax", "ax", "a", "a"},
        {"xxaxbxx", "axbxx", "xxaxb", "axb"},
        {" x ", " x ", " x ", " x "},
        {"x\0x"sv, "\0x"sv, "x\0"sv, "\0"sv},
    };
    for (const TrimmingRow& row : rows) {
        EXPECT_EQ(withoutLeading(row.text, isX), row.withoutLeading);
        EXPECT_EQ(withoutTrailing(row.text, isX), row.withoutTrailing);
        EXPECT_EQ(trimmed(row.text, isX), row.trimmed);
    }
}

TEST(TrimmingTest, SpacesAndTabsAreTrimmedFromBothEnds)
{
    EXPECT_EQ(trimmed(" \t a\tb \t"sv), "a\tb");
    EXPECT_EQ(trimmed(u" \t a\tb \t"sv), u"a\tb");
    EXPECT_EQ(trimmed(" \t "sv), "");
    // Line ends, NUL and the no-break space stay.
    for (const std::string_view text : {"\na\r"sv, "\0a\0"sv, "\xC2\xA0"sv})
        EXPECT_EQ(trimmed(text), text);
}

TEST(TrimmingTest, TheResultIsAViewIntoTheText)
{
    const std::string_view text = "  a  ";
    EXPECT_EQ(trimmed(text).data(), text.data() + 2);
}

TEST(TrimmingTest, NamesAreTidiedToOneLine)
{
    const std::pair<std::u16string_view, std::u16string_view> rows[] = {
        {u"", u""},
        {u"Reds", u"Reds"},
        {u" \tRed\nand\u007Fblue\r\n", u"Red and blue"},
        {u"\n\t\0"sv, u""},
        {u"Red  blue", u"Red  blue"},
        {u"\u00A0Red\u00A0", u"\u00A0Red\u00A0"},
    };
    for (const auto& [name, tidy] : rows)
        EXPECT_EQ(tidied(std::u16string(name)), tidy);
}

}  // namespace
}  // namespace vantorel
