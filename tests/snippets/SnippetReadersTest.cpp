#include "snippets/SnippetReaders.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

SnippetReaders builtInReaders()
{
    return SnippetReaders(QTXCodeSnippet::buildDefaultCodeSnippets());
}

TEST(SnippetReadersTest, FindsTheLinesInAText)
{
    const auto readers = builtInReaders();
    const std::u16string_view text =
        u"static Color a = new Color(0xff, 0x80, 0x00), b = Color( 0xffff8000 );\n"
        u"c = RGB(1, 2, 3)  # RGB(256, 2, 3), MyRGB(1, 2, 3)\n";
    const auto matches = readers.matchesIn(text);
    ASSERT_EQ(matches.size(), 3U);
    const char16_t* const lines[] = {u"Color(0xff, 0x80, 0x00)", u"Color( 0xffff8000 )",
                                     u"RGB(1, 2, 3)"};
    const char16_t* const names[] = {u"Java NSInteger 3", u"Java NSInteger A", u"VBasic"};
    for (std::size_t i = 0; i < 3; ++i) {
        const SnippetMatch& match = matches[i];
        EXPECT_EQ(text.substr(match.begin, match.end - match.begin), lines[i]);
        EXPECT_EQ(readers.snippets()[match.snippet].nameSnippet(), names[i]);
    }
    EXPECT_EQ(matches[0].color, HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1));
}

TEST(SnippetReadersTest, EachLineOfTheBuiltInSnippetsIsItsOwn)
{
    const auto readers = builtInReaders();
    QTXHexColorSpec spec;
    spec.setHexRed(255, 128, 1);
    spec.setAlphaComp(0.5);
    for (std::size_t i = 0; i < readers.snippets().size(); ++i) {
        const auto line = readers.snippets()[i].codeSnippetWithColorSpec(spec);
        const auto match = readers.matchOf(line);
        ASSERT_TRUE(match) << i;
        EXPECT_EQ(match->snippet, i);
    }
}

TEST(SnippetReadersTest, TheLongestMatchCountsThenTheFirst)
{
    const SnippetReaders readers({QTXCodeSnippet(u"short", u"(0x%06x)", u"rgbPackedInt"),
                                  QTXCodeSnippet(u"long", u"(0x%06x) end", u"rgbPackedInt"),
                                  QTXCodeSnippet(u"same", u"(0x%06X)", u"rgbPackedInt")});
    EXPECT_EQ(readers.matchAt(u"(0xff8000) end", 0)->snippet, 1U);
    EXPECT_EQ(readers.matchAt(u"(0xff8000) ends", 0)->snippet, 0U);
}

TEST(SnippetReadersTest, ASnippetWithoutTextIsReadAloneOnly)
{
    const SnippetReaders readers({QTXCodeSnippet(u"bare", u"(%d, %d, %d)", u"rgbFixed")});
    EXPECT_TRUE(readers.matchesIn(u"f(1, 2, 3)").empty());
    const auto match = readers.matchOf(u" (1, 2, 3)\r\n");
    ASSERT_TRUE(match);
    EXPECT_EQ(match->begin, 1U);
    EXPECT_EQ(match->end, 10U);
    EXPECT_FALSE(readers.matchOf(u" \n"));
    EXPECT_FALSE(readers.matchOf(u"(1, 2, 3) x"));
}

TEST(SnippetReadersTest, LinesMayBeginWithValuesAndNames)
{
    const SnippetReaders readers({QTXCodeSnippet(u"value", u"%d rgb", u"rgbPackedInt"),
                                  QTXCodeSnippet(u"name", u"accent = %06x hex", u"rgbPackedInt"),
                                  QTXCodeSnippet(u"foreign", u"\u00e4%06x", u"rgbPackedInt")});
    const auto matches = readers.matchesIn(u"x 16 rgb, sea = ff8000 hex; \u00e4ff8000 1.5 rgb");
    ASSERT_EQ(matches.size(), 3U);
    EXPECT_EQ(matches[0].snippet, 0U);
    EXPECT_EQ(matches[1].snippet, 1U);
    EXPECT_EQ(matches[2].snippet, 2U);
}

TEST(SnippetReadersTest, ALongTextTakesLinearTime)
{
    // Quadratic time would be hours.
    const auto readers = builtInReaders();
    for (const char16_t* unit : {u"Color(", u"Color(0x", u"RGB(1,", u"9", u" ", u"[NSColor "}) {
        std::u16string text;
        while (text.size() < (1U << 18))
            text += unit;
        EXPECT_TRUE(readers.matchesIn(text).empty());
    }
}

}  // namespace
}  // namespace vantorel
