#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

TEST(ReadingBlanksTest, BlanksOfUnicodeAreSkipped)
{
    std::u16string blanks;
    for (char32_t c = 1; c <= 0xFFFF; ++c) {
        const std::u16string text{static_cast<char16_t>(c), u'a'};
        const auto value = parsePropertyList(text);
        const bool isBlank = value && *value->string() == u"a";
        // A byte order mark is no blank, but is skipped at the beginning.
        if (isBlank && c != 0xFEFF) blanks += static_cast<char16_t>(c);
    }
    EXPECT_EQ(blanks,
              u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008"
              u"\u2009\u200A\u2028\u2029\u202F\u205F\u3000");
}

struct ReadRow {
    const char16_t* text;
    PropertyList value;
};

class ReadingTest : public testing::TestWithParam<ReadRow> {};

TEST_P(ReadingTest, GivesTheValue)
{
    const auto value = parsePropertyList(GetParam().text);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(*value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ReadingTest,
    testing::Values(ReadRow{u"bare_$/:.-9", u"bare_$/:.-9"}, ReadRow{u"\"\"", u""},
                    ReadRow{u"'a\"b'", u"a\"b"}, ReadRow{u"\"a\\\nb\"", u"ab"},
                    ReadRow{u"\"\\a\\b\\f\\n\\r\\t\\v\\\"\\'\\\\\\q\"", u"\a\b\f\n\r\t\v\"'\\q"},
                    ReadRow{u"\"\\101\\7\\U00e9\\u20AC\\Ux\"", u"A\a\u00e9\u20acUx"},
                    ReadRow{u"\"raw \u00e9\u20ac\"", u"raw \u00e9\u20ac"},
                    ReadRow{u"\uFEFF a ", u"a"}, ReadRow{u"()", Array{}},
                    ReadRow{u"(a,)", Array{u"a"}},
                    ReadRow{u"(a, (b), {})", Array{u"a", Array{u"b"}, Dictionary{}}},
                    ReadRow{u"{}", Dictionary{}}, ReadRow{u"{a=b;}", Dictionary{{u"a", u"b"}}},
                    ReadRow{u"{a=b}", Dictionary{{u"a", u"b"}}},
                    ReadRow{u"{ /* c */ \"a b\" // d\n = (1); }",
                            Dictionary{{u"a b", Array{u"1"}}}},
                    ReadRow{u"{a=1; b=2; a=3;}", Dictionary{{u"a", u"3"}, {u"b", u"2"}}},
                    ReadRow{u"<0fbd 77>", PropertyList::data("\x0f\xbd\x77")},
                    ReadRow{u"<>", PropertyList::data("")}));

class RefusingTest : public testing::TestWithParam<const char16_t*> {};

TEST_P(RefusingTest, InvalidTextsAreRejected)
{
    EXPECT_FALSE(parsePropertyList(GetParam()).has_value());
}

INSTANTIATE_TEST_SUITE_P(Texts, RefusingTest,
                         testing::Values(u"", u"  ", u"{", u"}", u"(a", u"(a b)", u"{a}", u"{a=}",
                                         u"{a=b;", u"{=b;}", u"{(a)=b;}", u"\"open", u"\"open\\",
                                         u"<0>", u"<0g>", u"<00", u"a b", u"a = b;", u"/* open",
                                         u"{a=b;} trailing", u"\u00e9", u"(,)", u"{;}"));

TEST(PropertyListReaderTest, DepthIsBounded)
{
    const auto nested = [](std::size_t depth) {
        return parsePropertyList(std::u16string(depth, u'(') + std::u16string(depth, u')'));
    };
    // The innermost array is empty, so the deepest value is one level above.
    EXPECT_TRUE(nested(deepestPropertyList + 1).has_value());
    EXPECT_FALSE(nested(deepestPropertyList + 2).has_value());
    EXPECT_FALSE(nested(1000000).has_value());
    const auto dictionaries = [](std::size_t depth) {
        std::u16string text;
        for (std::size_t i = 0; i < depth; ++i)
            text += u"{a=";
        return parsePropertyList(text + u"b" + std::u16string(depth, u'}'));
    };
    EXPECT_TRUE(dictionaries(deepestPropertyList).has_value());
    EXPECT_FALSE(dictionaries(deepestPropertyList + 1).has_value());
    EXPECT_FALSE(parsePropertyList(std::u16string(1000000, u'{')).has_value());
}

TEST(PropertyListReaderTest, AHugeTextIsRead)
{
    std::u16string text = u"(";
    for (int i = 0; i < 1000000; ++i)
        text += u"ab,";
    text += u")";
    const auto value = parsePropertyList(text);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->array()->size(), 1000000U);
    std::u16string keys = u"{";
    for (int i = 0; i < 200000; ++i) {
        const std::string number = std::to_string(i);
        keys += u"k" + std::u16string(number.begin(), number.end()) + u"=v;";
    }
    const auto dictionary = parsePropertyList(keys + u"}");
    ASSERT_TRUE(dictionary.has_value());
    EXPECT_EQ(dictionary->dictionary()->size(), 200000U);
}

PropertyList randomValue(std::mt19937& random, int depth)
{
    const auto text = [&] {
        std::u16string result(random() % 6, u'\0');
        for (char16_t& c : result) {
            c = static_cast<char16_t>(random() % 3 != 0 ? random() % 128 : random());
        }
        return result;
    };
    switch (depth > 3 ? random() % 2 : random() % 4) {
        case 0:
            return text();
        case 1: {
            std::string bytes(random() % 9, '\0');
            for (char& c : bytes)
                c = static_cast<char>(random());
            return PropertyList::data(bytes);
        }
        case 2: {
            Array array;
            for (std::size_t i = random() % 4; i > 0; --i) {
                array.push_back(randomValue(random, depth + 1));
            }
            return array;
        }
        default: {
            PropertyList dictionary(Dictionary{});
            for (std::size_t i = random() % 4; i > 0; --i) {
                dictionary.setValue(randomValue(random, depth + 1), text());
            }
            return dictionary;
        }
    }
}

TEST(PropertyListWriterTest, WrittenListsReadBackUnchanged)
{
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        const PropertyList value = randomValue(random, 0);
        const std::u16string text = propertyListText(value);
        const auto back = parsePropertyList(text);
        ASSERT_TRUE(back.has_value());
        ASSERT_EQ(*back, value);
        for (const char16_t c : text)
            ASSERT_LT(c, 0x7F);
    }
}

TEST(PropertyListWriterTest, DataIsInGroupsOfFourBytes)
{
    EXPECT_EQ(propertyListText(PropertyList::data("12345678")), u"<31323334 35363738>");
    EXPECT_EQ(propertyListText(PropertyList::data("12345")), u"<31323334 35>");
}

TEST(PropertyListReaderTest, DamagedTextsNeverFail)
{
    std::mt19937 random(9);
    const std::u16string good = propertyListText(
        Dictionary{{u"a key", Array{u"one", u"two \u00e9\n"}}, {u"b", PropertyList::data("xyz")}});
    for (std::size_t length = 0; length < good.size(); ++length) {
        EXPECT_FALSE(parsePropertyList(good.substr(0, length)).has_value());
    }
    for (int round = 0; round < 20000; ++round) {
        std::u16string damaged = good;
        damaged[random() % damaged.size()] = static_cast<char16_t>(random() % 256);
        static_cast<void>(parsePropertyList(damaged));
    }
}

TEST(PropertyListTest, OnlyDictionariesHaveKeys)
{
    EXPECT_EQ(PropertyList(u"text").valueForKey(u"a"), nullptr);
    EXPECT_EQ(PropertyList(Dictionary{{u"a", Array{}}}).stringForKey(u"a"), nullptr);
}

TEST(PropertyListTest, TheLineOfAnErrorIsKnown)
{
    EXPECT_EQ(lineOfPropertyListError(u"(a, b)"), 0U);
    EXPECT_EQ(lineOfPropertyListError(u""), 1U);
    EXPECT_EQ(lineOfPropertyListError(u"{\n a = b c;\n}\n"), 2U);
    EXPECT_EQ(lineOfPropertyListError(u"(a,\n b)\nc"), 3U);
}

}  // namespace
}  // namespace vantorel
