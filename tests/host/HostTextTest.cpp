#include "host/HostText.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

TEST(HostTextTest, EveryCharacterSurvives)
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

TEST(HostTextTest, IllFormedBytesBecomeReplacements)
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

TEST(HostTextTest, AnyBytesConvert)
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
