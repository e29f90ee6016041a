#include "lsp/TextLines.h"

#include <gmock/gmock.h>

#include <random>
#include <string>

namespace vantorel {
namespace {

using testing::ElementsAre;

constexpr auto utf8 = PositionEncoding::utf8;
constexpr auto utf16 = PositionEncoding::utf16;

TEST(TextLinesTest, LinesEndWithALineFeedACarriageReturnOrBoth)
{
    EXPECT_THAT(TextLines("a\nb\r\nc\rd").begins(), ElementsAre(0, 2, 5, 7));
    EXPECT_THAT(TextLines("").begins(), ElementsAre(0));
    EXPECT_THAT(TextLines("\n").begins(), ElementsAre(0, 1));
    EXPECT_THAT(TextLines("\n\r").begins(), ElementsAre(0, 1, 2));
}

TEST(TextLinesTest, ColumnsCountUnitsOfTheEncoding)
{
    const std::string_view text = "a\u00e4\u20ac\U0001F600b\nc";
    const TextLines lines(text);
    const std::size_t b = text.find('b');
    EXPECT_EQ(lines.position(text, b, utf16), (Position{0, 5}));
    EXPECT_EQ(lines.position(text, b, utf8), (Position{0, 10}));
    EXPECT_EQ(lines.place(text, {0, 5}, utf16), b);
    EXPECT_EQ(lines.place(text, {0, 10}, utf8), b);
    EXPECT_EQ(lines.place(text, {1, 1}, utf16), text.size());
}

TEST(TextLinesTest, APlaceWithinACharacterIsItsBeginning)
{
    const std::string_view text = "\U0001F600x";
    const TextLines lines(text);
    EXPECT_EQ(lines.place(text, {0, 1}, utf16), 0U);
    EXPECT_EQ(lines.place(text, {0, 2}, utf16), 4U);
    EXPECT_EQ(lines.place(text, {0, 3}, utf8), 0U);
}

TEST(TextLinesTest, PositionsOutsideAreAtTheEnds)
{
    const std::string_view text = "ab\r\nc";
    const TextLines lines(text);
    EXPECT_EQ(lines.place(text, {0, 99}, utf16), 2U);
    EXPECT_EQ(lines.place(text, {0, 99}, utf8), 2U);
    EXPECT_EQ(lines.place(text, {9, 0}, utf16), 5U);
}

TEST(TextLinesTest, LinesFollowEdits)
{
    std::mt19937 random(1);  // NOLINT(bugprone-random-generator-seed): the same each time.
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    constexpr std::array<std::string_view, 8> pieces{"",  "\n",   "\r",   "\r\n",
                                                     "a", "b\nc", "\n\r", "\r\r"};
    std::string text = "a\r\nb\nc\rd";
    TextLines lines(text);
    for (int i = 0; i < 5000; ++i) {
        const std::size_t begin = below(text.size() + 1);
        const std::size_t end = std::min(begin + below(4), text.size());
        const std::string_view piece = pieces[below(pieces.size())];
        text.replace(begin, end - begin, piece);
        lines.replace(text, {begin, end}, piece.size());
        ASSERT_EQ(lines, TextLines(text)) << i;
    }
}

TEST(TextLinesTest, AWalkerFindsThePositionsOfPlaces)
{
    const std::string_view text = "a\u00e4\n\U0001F600 some text with many columns\r\nb";
    const TextLines lines(text);
    for (const auto encoding : {utf8, utf16}) {
        PositionWalker walker(text, lines, encoding);
        for (const std::size_t place : {0U, 1U, 3U, 4U, 8U, 20U, 12U, 30U, 1U, 38U}) {
            EXPECT_EQ(walker.to(place), lines.position(text, place, encoding)) << place;
        }
    }
}

}  // namespace
}  // namespace vantorel
