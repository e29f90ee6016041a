#include "result/HarmlessLine.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(HarmlessLineTest, ControlCharactersBecomeBlanks)
{
    EXPECT_EQ(harmlessLine("a\x1B[2J\nb\xC2\x9B"), "a [2J b ");
    EXPECT_EQ(harmlessLine("\xFF"), "\uFFFD");
}

TEST(ExcerptTest, LongTextsAreCutBetweenCharacters)
{
    const std::string x(59, 'x');
    EXPECT_EQ(excerpt(x + "y"), x + "y");
    EXPECT_EQ(excerpt(x + "yz"), x + "y...");
    EXPECT_EQ(excerpt(x + "\U0001F3A8 and more"), x + "...");
    EXPECT_EQ(excerpt("\u00E9\u00E9", 3), "\u00E9...");
    EXPECT_EQ(excerpt("\u00E9\u00E9", 0), "...");
    EXPECT_EQ(excerpt("\x80\x80\x80", 2), "...") << "no character begins";
}

TEST(ExcerptTest, LengthsInUtf16AreUnits)
{
    EXPECT_EQ(excerpt(u"abc", 3), u"abc");
    EXPECT_EQ(excerpt(u"abcd", 3), u"abc...");
    EXPECT_EQ(excerpt(u"ab\U0001F3A8c", 3), u"ab...");
    EXPECT_EQ(excerpt(u"ab", 0), u"...");
}

}  // namespace
}  // namespace vantorel
