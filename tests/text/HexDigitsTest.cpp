#include "text/HexDigits.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

struct Digit {
    char16_t c;
    int value;
};

TEST(HexDigitsTest, DigitsHaveTheirValues)
{
    const Digit rows[] = {{u'0', 0}, {u'9', 9}, {u'a', 10}, {u'f', 15}, {u'A', 10}, {u'F', 15}};
    for (const auto& [c, value] : rows) {
        EXPECT_TRUE(isHexDigit(c));
        EXPECT_EQ(hexDigitValue(c), value);
        EXPECT_EQ(hexDigitValue(static_cast<char>(c)), value);
    }
}

TEST(HexDigitsTest, OtherUnitsAreNotDigits)
{
    int count = 0;
    for (int c = 0; c <= 0xFFFF; ++c)
        count += isHexDigit(static_cast<char16_t>(c)) ? 1 : 0;
    EXPECT_EQ(count, 22);
    // The neighbours of the digits, full-width and Arabic ones, and units whose low byte is a
    // digit.
    for (const char16_t c : {u'/', u':', u'@', u'G', u'`', u'g', u'\0', u'\uFF11', u'\u0661',
                             u'\u0130', u'\u0161', u'\xFFFF', u'\xD841'}) {
        EXPECT_EQ(hexDigitValue(c), notAHexDigit) << static_cast<int>(c);
    }
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        EXPECT_EQ(hexDigitValue(static_cast<char>(byte)), notAHexDigit);
}

TEST(HexDigitsTest, AnInvalidDigitShowsInTheCombinedValue)
{
    // Readers of several digits check them all at once.
    for (const char digit : {'0', '7', 'f'})
        EXPECT_GT(hexDigitValue(digit) | hexDigitValue('x'), 15);
}

TEST(HexDigitsTest, EachByteIsWrittenAndReadBack)
{
    for (const HexCase letterCase : {HexCase::lower, HexCase::upper}) {
        for (int byte = 0; byte <= 0xFF; ++byte) {
            std::string text = ">";
            appendHexByte(text, static_cast<std::uint8_t>(byte), letterCase);
            ASSERT_EQ(text.size(), 3);
            EXPECT_EQ(hexDigitValue(text[1]) * 16 + hexDigitValue(text[2]), byte);
        }
    }
}

struct Written {
    std::uint64_t value;
    std::size_t count;
    HexCase letterCase;
    std::u16string_view text;
};

TEST(HexDigitsTest, TheLowestDigitsAreWritten)
{
    constexpr auto largest = std::numeric_limits<std::uint64_t>::max();
    const Written rows[] = {
        {0, 0, HexCase::lower, u""},
        {0xAB, 0, HexCase::lower, u""},
        {0, 1, HexCase::lower, u"0"},
        {0xAB, 1, HexCase::lower, u"b"},
        {0xAB, 2, HexCase::upper, u"AB"},
        {0xAB, 4, HexCase::lower, u"00ab"},
        {0x123456789ABCDEF0, 16, HexCase::upper, u"123456789ABCDEF0"},
        {largest, 16, HexCase::lower, u"ffffffffffffffff"},
        // More digits than the type has.
        {largest, 18, HexCase::lower, u"00ffffffffffffffff"},
    };
    for (const auto& [value, count, letterCase, expected] : rows) {
        std::u16string text;
        appendHexDigits(text, value, count, letterCase);
        EXPECT_EQ(text, expected);
    }
}

TEST(HexDigitsTest, ColorsAreWritten)
{
    std::string text = "fill=";
    appendHexColor(text, {0, 0xA9, 0xFF}, HexCase::lower);
    EXPECT_EQ(text, "fill=#00a9ff");
    std::u16string wide;
    appendHexColor(wide, {0, 0xA9, 0xFF}, HexCase::upper);
    EXPECT_EQ(wide, u"#00A9FF");
}

TEST(HexDigitsTest, DigitsCanBeReadAtCompileTime)
{
    static_assert(hexDigitValue('c') == 12);
    static_assert(hexDigits(HexCase::upper)[12] == 'C');
}

}  // namespace
}  // namespace vantorel
