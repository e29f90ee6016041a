#include "snippets/FormatParts.h"
#include "snippets/FormatString.h"

#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <limits>
#include <random>

namespace vantorel {
namespace {

template <class Value>
std::string byTheCLibrary(const std::string& format, Value value)
{
    std::array<char, 2048> buffer{};
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(buffer.data(), buffer.size(), format.c_str(), value);
#pragma GCC diagnostic pop
    return buffer.data();
}

std::string byUs(const std::string& format, const FormatArgument& argument)
{
    return utf8FromUtf16(formatted(utf16FromUtf8(format), {&argument, 1}));
}

const std::array flagSets{"", "-", "+", " ", "0", "#", "-0", "+0", " 0", "#0", "-#", "+ "};
const std::array widths{"", "1", "7", "20"};
const std::array precisions{"", ".", ".0", ".3", ".12"};

TEST(FormatStringTest, IntegersAreReadAsInC)
{
    const std::array<std::uint64_t, 8> values{0,          1,          42,         255,
                                              0x7FFFFFFF, 0x80000000, 0xFFFF8000, 0xFF123456};
    for (const char* flags : flagSets) {
        for (const char* width : widths) {
            for (const char* precision : precisions) {
                for (const char* letter : {"d", "i", "u", "x", "X", "o"}) {
                    const std::string format =
                        std::string("%") + flags + width + precision + letter;
                    for (const std::uint64_t value : values) {
                        EXPECT_EQ(byUs(format, value),
                                  byTheCLibrary(format, static_cast<int>(value)))
                            << format << " of " << value;
                    }
                }
            }
        }
    }
}

TEST(FormatStringTest, LengthsCutIntegersAsInC)
{
    for (const std::uint64_t value :
         {0ULL, 1ULL, 0x7FULL, 0x80ULL, 0xFFULL, 0x123ULL, 0x7FFFULL, 0x8000ULL, 0xFFFFULL,
          0x12345ULL, 0x80000000ULL, 0x123456789ULL, 0xFEDCBA9876543210ULL}) {
        for (const std::string letter : {"d", "i", "u", "x", "X", "o"}) {
            const auto small = static_cast<int>(value);
            EXPECT_EQ(byUs("%hh" + letter, value), byTheCLibrary("%hh" + letter, small));
            EXPECT_EQ(byUs("%h" + letter, value), byTheCLibrary("%h" + letter, small));
            EXPECT_EQ(byUs("%" + letter, value), byTheCLibrary("%" + letter, small));
            EXPECT_EQ(byUs("%l" + letter, value), byTheCLibrary("%l" + letter, value));
            EXPECT_EQ(byUs("%ll" + letter, value), byTheCLibrary("%ll" + letter, value));
        }
        const FormatArgument argument(value);
        EXPECT_EQ(formatted(u"%c", {&argument, 1}), std::u16string(1, char16_t(value & 0xFF)));
    }
}

TEST(FormatStringTest, RealNumbersAreReadAsInC)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::array values{0.0,  -0.0, 1.0,  0.5019607843137255, 1.0 / 3,  123456.789, 100000.0,
                            1e-7, 1e20, -2.5, infinity,           -infinity};
    for (const char* flags : flagSets) {
        for (const char* width : widths) {
            for (const char* precision : precisions) {
                for (const char* letter : {"f", "F", "e", "E", "g", "G"}) {
                    const std::string format =
                        std::string("%") + flags + width + precision + letter;
                    for (const double value : values) {
                        EXPECT_EQ(byUs(format, value), byTheCLibrary(format, value))
                            << format << " of " << value;
                    }
                }
            }
        }
    }
    EXPECT_EQ(byUs("%7.5f", std::numeric_limits<double>::quiet_NaN()), "    nan");
    EXPECT_EQ(byUs("%.0f|%a", 1.0), "1|%a");
    EXPECT_EQ(byUs("%#.0f", 1.0), "1.");
    EXPECT_EQ(byUs("%a", 1.0), byTheCLibrary("%a", 1.0));
}

TEST(FormatStringTest, ZeroWithPrecisionZeroPrintsNoDigits)
{
    EXPECT_EQ(byUs("%3.0d", std::uint64_t{0}), "   ");
    EXPECT_EQ(byUs("%3.0d", std::uint64_t{5}), "  5");
}

struct HostileRow {
    const char* format;
    const char* result;
};

class HostileFormatTest : public testing::TestWithParam<HostileRow> {};

TEST_P(HostileFormatTest, IsRenderedHarmlessly)
{
    const std::array<FormatArgument, 2> arguments{std::uint64_t{7}, 0.5};
    EXPECT_EQ(utf8FromUtf16(formatted(utf16FromUtf8(GetParam().format), arguments)),
              GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Formats, HostileFormatTest,
                         testing::Values(HostileRow{"%", "%"}, HostileRow{"%5", "%5"},
                                         HostileRow{"%n%d", "%n7"},
                                         HostileRow{"%d %d %d", "7 0 %d"},
                                         HostileRow{"%f", "7.000000"}, HostileRow{"%s %s", "7 0.5"},
                                         HostileRow{"%*d", "%*d"}, HostileRow{"%2$d", "%2$d"},
                                         HostileRow{"%%%d%%", "%7%"}, HostileRow{"%lld", "7"},
                                         HostileRow{"%hhd", "7"}, HostileRow{"", ""}));

TEST(FormatStringTest, WidthsPrecisionsAndLengthsAreBounded)
{
    const FormatArgument seven{std::uint64_t{7}};
    EXPECT_EQ(byUs("%99999999999999999999d", seven).size(), widestFormatField);
    EXPECT_EQ(byUs("%.99999999999999999999d", seven).size(), finestFormatPrecision);
    std::string many;
    for (int i = 0; i < 5000; ++i)
        many += "%1000d";
    std::vector<FormatArgument> arguments(5000, seven);
    EXPECT_LE(formatted(utf16FromUtf8(many), arguments).size(), longestFormatResult);
}

TEST(FormatStringTest, RandomFormatsNeverFail)
{
    std::mt19937 random(11);
    const std::u16string alphabet = u"%%%%0123456789.-+ #hlqjztLdiuoxXcfFeEgGaAs@n*$\u20ac";
    const std::array<FormatArgument, 3> arguments{std::uint64_t{0xFFFFFFFFFFFFFFFF}, -1e308,
                                                  std::u16string(u"text")};
    for (int round = 0; round < 20000; ++round) {
        std::u16string format;
        for (std::size_t i = random() % 24; i > 0; --i)
            format += alphabet[random() % alphabet.size()];
        EXPECT_LE(formatted(format, arguments).size(), 24 * 1100U);
    }
}

}  // namespace
}  // namespace vantorel
