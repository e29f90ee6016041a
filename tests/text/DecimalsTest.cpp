#include "text/Decimals.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

TEST(DecimalsTest, WholeNumbersAreWritten)
{
    EXPECT_EQ(decimalText(0), u"0");
    EXPECT_EQ(decimalText(-1), u"-1");
    EXPECT_EQ(decimalText(std::size_t{42}), u"42");
    EXPECT_EQ(decimalText(std::numeric_limits<std::int32_t>::min()), u"-2147483648");
    EXPECT_EQ(decimalText(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
    EXPECT_EQ(decimalText(std::numeric_limits<std::uint64_t>::max()), u"18446744073709551615");
}

TEST(DecimalsTest, EachByteIsWritten)
{
    for (int byte = 0; byte <= 0xFF; ++byte) {
        std::string text = "x";
        appendDecimal(text, static_cast<std::uint8_t>(byte));
        EXPECT_EQ(text, "x" + std::to_string(byte));
    }
}

struct DecimalsRow {
    double number;
    int decimals;
    const char* fixed;
    const char* shortened;
};

TEST(DecimalsTest, RealNumbersAreWrittenWithTheirDecimals)
{
    const DecimalsRow rows[] = {
        {0, 0, "0", "0"},
        {0, 3, "0.000", "0"},
        {-0.0, 3, "-0.000", "0"},
        {-0.0004, 3, "-0.000", "0"},
        {-0.0006, 3, "-0.001", "-0.001"},
        {1, 3, "1.000", "1"},
        {100, 0, "100", "100"},
        {100, 2, "100.00", "100"},
        {0.5, 0, "0", "0"},  // rounded to even
        {1.5, 0, "2", "2"},
        {0.125, 2, "0.12", "0.12"},
        {0.375, 2, "0.38", "0.38"},
        {0.999, 2, "1.00", "1"},
        {12.340, 5, "12.34000", "12.34"},
        {10.05, 1, "10.1", "10.1"},  // the stored double is slightly larger
        {1e17, 1, "100000000000000000.0", "100000000000000000"},
        {1, -5, "1", "1"},
    };
    for (const auto& [number, decimals, fixed, shortened] : rows) {
        EXPECT_EQ(fixedText(number, decimals), fixed);
        EXPECT_EQ(shortFixedText(number, decimals), shortened);
    }
}

TEST(DecimalsTest, TheLongestNumbersFit)
{
    constexpr double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(fixedText(-largest, 100).size(), 1 + 309 + 1 + 100);
    EXPECT_EQ(fixedText(largest, 1000).size(), 309 + 1 + 100);
    EXPECT_EQ(shortFixedText(largest, 100).size(), 309);
    EXPECT_EQ(shortFixedText(std::numeric_limits<double>::denorm_min(), 100), "0");
    EXPECT_EQ(fixedText(std::numeric_limits<double>::infinity(), 3), "inf");
    EXPECT_EQ(shortFixedText(-std::numeric_limits<double>::infinity(), 3), "-inf");
    EXPECT_EQ(shortFixedText(std::numeric_limits<double>::quiet_NaN(), 3), "nan");
}

TEST(DecimalsTest, WholeNumbersAreRead)
{
    EXPECT_EQ(wholeNumber<int>("0"), 0);
    EXPECT_EQ(wholeNumber<int>("007"), 7);
    EXPECT_EQ(wholeNumber<int>("-12"), -12);
    EXPECT_EQ(wholeNumber<int>("2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(wholeNumber<int>("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(wholeNumber<std::uint8_t>("255"), 255);
}

TEST(DecimalsTest, OtherTextsAreNotWholeNumbers)
{
    using namespace std::string_view_literals;
    for (const std::string_view text :
         {""sv, " 1"sv, "1 "sv, "+1"sv, "-"sv, "--1"sv, "1.0"sv, "1e3"sv, "0x10"sv, "1\0"sv, "\0"sv,
          "a"sv, "2147483648"sv, "-2147483649"sv, "\xD9\xA1"sv}) {
        EXPECT_EQ(wholeNumber<int>(text), std::nullopt) << text;
    }
    EXPECT_EQ(wholeNumber<int>(std::string(1'000'000, '9')), std::nullopt);
    EXPECT_EQ(wholeNumber<unsigned>("-1"), std::nullopt);
    EXPECT_EQ(wholeNumber<std::uint8_t>("256"), std::nullopt);
}

TEST(DecimalsTest, NumbersInNamesAreRead)
{
    EXPECT_EQ(nameNumber(u"1"), 1);
    EXPECT_EQ(nameNumber(u"20"), 20);
    EXPECT_EQ(nameNumber(u"999999999"), 999'999'999);
}

TEST(DecimalsTest, OtherTextsAreNotNumbersInNames)
{
    for (const std::u16string_view text : {u"", u"0", u"01", u"-1", u"+1", u" 1", u"1 ", u"1a",
                                           u"1000000000", u"\u0661", u"\uFF11", u"\u0131"}) {
        EXPECT_EQ(nameNumber(text), std::nullopt);
    }
}

}  // namespace
}  // namespace vantorel
