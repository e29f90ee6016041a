#include "color/ColorTexts.h"

#include "color/QTXHexColorSpec.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

TEST(ColorTextsTest, EveryComponentSurvivesHexAndInteger)
{
    for (std::uint64_t k = 0; k <= 255; ++k) {
        for (const auto form : {EntryForm::uppercase, EntryForm::lowercase}) {
            const auto hex = *compStringHexColorSpec(k, form, ComponentDisplay::hex);
            EXPECT_EQ(hex.size(), 2U);
            EXPECT_EQ(readHex(hex), k);
        }
        const auto integer =
            *compStringHexColorSpec(k, EntryForm::uppercase, ComponentDisplay::integer);
        EXPECT_EQ(readInt(integer), k);
        const auto fraction =
            *compStringHexColorSpec(k, EntryForm::uppercase, ComponentDisplay::fraction);
        const std::uint64_t back = readFraction(fraction);
        EXPECT_LE(back > k ? back - k : k - back, 1U);  // three decimals may be off by one
    }
    EXPECT_EQ(
        readFraction(*compStringHexColorSpec(7, EntryForm::uppercase, ComponentDisplay::fraction)),
        6U);
}

TEST(ColorTextsTest, AFractionIsReadFromItsFirstDigits)
{
    struct Row {
        const char16_t* text;
        std::uint64_t component;
    };
    for (const Row& row :
         {Row{u"1", 255},     Row{u"2", 255},     Row{u"8", 255},     Row{u"9", 255},
          Row{u"1.5", 255},   Row{u"0", 0},       Row{u"00", 0},      Row{u"", 0},
          Row{u"x", 0},       Row{u".", 0},       Row{u"0.5", 127},   Row{u".5", 127},
          Row{u"-0.5", 127},  Row{u"x.5", 127},   Row{u"0.05", 12},   Row{u"0.005", 1},
          Row{u"0.0039", 0},  Row{u"0.00391", 0}, Row{u"0.00392", 1}, Row{u"0.003919", 0},
          Row{u"0.999", 255}, Row{u"0.99", 252},  Row{u"0.5x9", 127}, Row{u"0.5.9", 127},
          Row{u":", 0},       Row{u"/", 0}}) {
        EXPECT_EQ(readFraction(row.text), row.component)
            << testing::PrintToString(std::u16string(row.text));
    }
}

TEST(ColorTextsTest, OnlyHexDigitsDecode)
{
    for (char32_t c = 0; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        int expected = 0;
        if (c >= '0' && c <= '9') expected = static_cast<int>(c - '0');
        if (c >= 'A' && c <= 'F') expected = static_cast<int>(c - 'A' + 10);
        if (c >= 'a' && c <= 'f') expected = static_cast<int>(c - 'a' + 10);
        ASSERT_EQ(decodeHex(unit), expected) << static_cast<unsigned>(c);
    }
}

struct ValidRow {
    const char16_t* text;
    int digits;
    const char16_t* result;  // null: rejected
};

void PrintTo(const ValidRow& row, std::ostream* out)
{
    *out << testing::PrintToString(std::u16string(row.text)) << " as " << row.digits << " digits";
}

class ValidHexStringTest : public testing::TestWithParam<ValidRow> {};

TEST_P(ValidHexStringTest, NormalisesOrRejects)
{
    const auto& [text, digits, result] = GetParam();
    const auto valid = validHexString(text, digits);
    if (result == nullptr) {
        EXPECT_FALSE(valid.has_value());
    } else {
        EXPECT_EQ(valid, std::u16string(result));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ValidHexStringTest,
    testing::Values(ValidRow{u"AbC", 6, u"AAbbCC"}, ValidRow{u"#aBc", 6, u"#aaBBcc"},
                    ValidRow{u"12", 6, nullptr}, ValidRow{u"1234", 6, nullptr},
                    ValidRow{u"##", 2, nullptr}, ValidRow{u"#ab", 2, u"#ab"},
                    ValidRow{u"abc", 2, u"abc"}, ValidRow{u"a\u00e4", 2, nullptr},
                    ValidRow{u"a", 0, u""}, ValidRow{u"a", -1, nullptr},
                    ValidRow{u"a", 2147483647, nullptr}, ValidRow{u"a", 8, nullptr},
                    ValidRow{u"abc", 7, nullptr}, ValidRow{u"abcdefa", 7, u"abcdefa"}));

TEST(ColorTextsTest, ReadersAcceptTextsOfAnyKindAndLength)
{
    std::mt19937 random(7);
    std::u16string text(100000, u'0');
    for (int round = 0; round < 20; ++round) {
        for (char16_t& c : text)
            c = static_cast<char16_t>(random());
        for (const std::size_t length :
             {std::size_t{0}, std::size_t{1}, std::size_t{7}, text.size()}) {
            const std::u16string_view part = std::u16string_view(text).substr(0, length);
            EXPECT_LE(readHex(part), 255U);
            EXPECT_LE(readInt(part), 255U);
            EXPECT_LE(readFraction(part), 255U);
            QTXHexColorSpec spec;
            spec.setWithString(part);
            EXPECT_LE(spec.redHexComp(), 255U);
            static_cast<void>(validHexString(part, 6));
            EXPECT_EQ(webSafeColorFromName(part).alphaComponent(), 1.0);
        }
    }
}

TEST(ColorTextsTest, AComponentOfMoreThanTwoDigitsIsWrittenAsPrintfWould)
{
    EXPECT_EQ(hexCompStringHexColorSpec(0x1FF, EntryForm::uppercase), u"0F");
    EXPECT_EQ(compStringHexColorSpec(0xFFFFFFFF, EntryForm::uppercase, ComponentDisplay::integer),
              u"-1");
}

}  // namespace
}  // namespace vantorel
