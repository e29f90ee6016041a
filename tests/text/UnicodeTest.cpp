#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

TEST(UnicodeTest, EveryCharacterSurvives)
{
    for (char32_t c = 1; c <= 0x10FFFF; c += c < 0x3000 ? 1 : 61) {
        if (c >= 0xD800 && c <= 0xDFFF) continue;
        std::u16string text;
        if (c < 0x10000) {
            text.push_back(static_cast<char16_t>(c));
        } else {
            text.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
        }
        const std::string utf8 = utf8FromUtf16(text);
        ASSERT_TRUE(isWellFormedUtf8(utf8));
        ASSERT_EQ(utf16FromUtf8(utf8), text);
    }
}

TEST(UnicodeTest, IllFormedBytesBecomeReplacements)
{
    for (const char* bytes : {"\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80",
                              "\xF4\x90\x80\x80", "\x80", "\xC3", "a\xFFz"}) {
        EXPECT_FALSE(isWellFormedUtf8(bytes));
        EXPECT_NE(utf16FromUtf8(bytes).find(u'\uFFFD'), std::u16string::npos);
    }
    const char16_t loneSurrogates[] = {0xD800, u'a', 0xDC00, 0};
    EXPECT_EQ(utf8FromUtf16(loneSurrogates),
              "\xEF\xBF\xBD"
              "a\xEF\xBF\xBD");
}

TEST(UnicodeTest, OnlyAHighSurrogateBeforeALowOneIsAPair)
{
    const std::string lone = "\xEF\xBF\xBD";
    struct Row {
        char16_t first, second;
        std::string utf8;
    };
    for (const auto& [first, second, utf8] :
         {Row{0xDBFF, 0xDFFF, "\xF4\x8F\xBF\xBF"}, Row{0xD800, 0xDC00, "\xF0\x90\x80\x80"},
          Row{0xDC00, 0xDC00, lone + lone}, Row{0xD800, 0xD800, lone + lone},
          Row{0xD800, 0xDBFF, lone + lone}, Row{0xD800, 0xE000, lone + "\xEE\x80\x80"},
          Row{0xD7FF, 0xDC00, "\xED\x9F\xBF" + lone}}) {
        const char16_t units[] = {first, second};
        EXPECT_EQ(utf8FromUtf16({units, 2}), utf8)
            << std::hex << unsigned{first} << " " << unsigned{second};
    }
}

struct Encoded {
    char32_t character;
    std::u16string_view utf16;
    std::string_view utf8;
};

TEST(UnicodeTest, TheBoundariesOfEachLengthConvert)
{
    using namespace std::string_view_literals;
    const Encoded rows[] = {
        {0, u"\0"sv, "\0"sv},
        {0x7F, u"\u007F", "\x7F"},
        {0x80, u"\u0080", "\xC2\x80"},
        {0x7FF, u"\u07FF", "\xDF\xBF"},
        {0x800, u"\u0800", "\xE0\xA0\x80"},
        {0xD7FF, u"\uD7FF", "\xED\x9F\xBF"},
        {0xE000, u"\uE000", "\xEE\x80\x80"},
        {0xFEFF, u"\uFEFF", "\xEF\xBB\xBF"},
        {0xFFFF, u"\uFFFF", "\xEF\xBF\xBF"},
        {0x10000, u"\U00010000", "\xF0\x90\x80\x80"},
        {0x10FFFF, u"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [character, utf16, utf8] : rows) {
        EXPECT_EQ(utf16FromUtf8(utf8), utf16);
        EXPECT_EQ(utf8FromUtf16(utf16), utf8);
        EXPECT_TRUE(isWellFormedUtf8(utf8));
        std::u16string text = u"a";
        appendUtf16(text, character);
        EXPECT_EQ(text.substr(1), utf16);
    }
}

TEST(UnicodeTest, AnInvalidCodePointIsAppendedAsAReplacement)
{
    for (const char32_t character : {0xD800U, 0xDBFFU, 0xDC00U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
        std::u16string text;
        appendUtf16(text, character);
        EXPECT_EQ(text, u"\uFFFD");
    }
}

TEST(UnicodeTest, EachByteOfAnIllFormedSequenceIsReplaced)
{
    const std::pair<std::string_view, std::u16string_view> rows[] = {
        {"\xE2\x82", u"\uFFFD\uFFFD"},            // cut short
        {"\xE2\x82z", u"\uFFFD\uFFFDz"},          // broken off
        {"\xF0\x9F\x98", u"\uFFFD\uFFFD\uFFFD"},  // cut short
        {"\xC1\xBF", u"\uFFFD\uFFFD"},            // overlong
        {"\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD"},  // a surrogate
        {"\xFE\xFF", u"\uFFFD\uFFFD"},            // never in UTF-8
    };
    for (const auto& [utf8, utf16] : rows) {
        EXPECT_FALSE(isWellFormedUtf8(utf8));
        EXPECT_EQ(utf16FromUtf8(utf8), utf16);
    }
}

TEST(UnicodeTest, AnyBytesConvert)
{
    std::mt19937 random(3);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(random() % 40, '\0');
        for (char& c : bytes)
            c = static_cast<char>(random());
        EXPECT_TRUE(isWellFormedUtf8(utf8FromUtf16(utf16FromUtf8(bytes))));
    }
}

}  // namespace
}  // namespace vantorel
