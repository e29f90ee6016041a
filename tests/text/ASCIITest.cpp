#include "text/ASCII.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

/// The classes of the C locale, written out: "std::isdigit" and its like ask the program's locale.
struct Class {
    const char* name;
    bool (*isMember)(char32_t);
    std::string_view members;
};

constexpr std::string_view digits = "0123456789";
constexpr std::string_view upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view lower = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::string_view lettersAndDigits =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

const Class classes[] = {
    {"digit", isDigit<char32_t>, digits},
    {"upper case", isUpperCase<char32_t>, upper},
    {"lower case", isLowerCase<char32_t>, lower},
    {"letter", isLetter<char32_t>, letters},
    {"letter or digit", isLetterOrDigit<char32_t>, lettersAndDigits},
    {"blank", isBlank<char32_t>, "\t "},
};

TEST(ASCIITest, EachClassHasExactlyItsMembers)
{
    for (const Class& each : classes) {
        for (char32_t c = 0; c < 0x20000; ++c) {
            const bool isMember =
                c < 0x80 && each.members.find(static_cast<char>(c)) != std::string_view::npos;
            ASSERT_EQ(each.isMember(c), isMember)
                << each.name << ' ' << std::hex << static_cast<std::uint32_t>(c);
        }
    }
}

TEST(ASCIITest, TheThreeWidthsAgreeOnASCII)
{
    for (int c = 0; c < 0x80; ++c) {
        const auto byte = static_cast<char>(c);
        const auto unit = static_cast<char16_t>(c);
        EXPECT_EQ(isDigit(byte), isDigit(unit)) << c;
        EXPECT_EQ(isLetter(byte), isLetter(unit)) << c;
        EXPECT_EQ(isBlank(byte), isBlank(unit)) << c;
        EXPECT_EQ(isControl(byte), isControl(unit)) << c;
        EXPECT_EQ(static_cast<char16_t>(lowerCase(byte)), lowerCase(unit)) << c;
        EXPECT_EQ(static_cast<char16_t>(upperCase(byte)), upperCase(unit)) << c;
    }
}

TEST(ASCIITest, BytesOfLongerSequencesBelongToNoClass)
{
    for (int c = 0x80; c < 0x100; ++c) {
        const auto byte = static_cast<char>(c);
        EXPECT_FALSE(isLetterOrDigit(byte) || isBlank(byte) || isControl(byte)) << c;
        EXPECT_EQ(lowerCase(byte), byte);
        EXPECT_EQ(upperCase(byte), byte);
    }
}

TEST(ASCIITest, ControlsAreThoseBelowSpaceAndDelete)
{
    for (char32_t c = 0; c < 0x20000; ++c)
        ASSERT_EQ(isControl(c), c < 0x20 || c == 0x7F) << static_cast<std::uint32_t>(c);
}

TEST(ASCIITest, OnlyASCIILettersChangeCase)
{
    for (char32_t c = 0; c < 0x20000; ++c) {
        const std::size_t asUpper =
            c < 0x80 ? upper.find(static_cast<char>(c)) : std::string_view::npos;
        const std::size_t asLower =
            c < 0x80 ? lower.find(static_cast<char>(c)) : std::string_view::npos;
        const auto letterOf = [](std::string_view row, std::size_t place) {
            return static_cast<char32_t>(row[place]);
        };
        ASSERT_EQ(lowerCase(c), asUpper != std::string_view::npos ? letterOf(lower, asUpper) : c);
        ASSERT_EQ(upperCase(c), asLower != std::string_view::npos ? letterOf(upper, asLower) : c);
    }
}

TEST(ASCIITest, WholeTextsChangeCase)
{
    EXPECT_EQ(lowerCased(std::string("Az09-\xC3\x84")), "az09-\xC3\x84");
    EXPECT_EQ(upperCased(std::u16string(u"aZ09-\u00E4\u0131")), u"AZ09-\u00E4\u0131");
    EXPECT_EQ(lowerCased(std::string()), "");
}

struct Pair {
    std::u16string_view left;
    std::u16string_view right;
    bool areEqual;
};

TEST(ASCIITest, TextsAreComparedIgnoringCase)
{
    using namespace std::string_view_literals;
    const Pair pairs[] = {
        {u"", u"", true},
        {u"rgb(", u"RGB(", true},
        {u"rgb(", u"rgb", false},
        {u"", u"a", false},
        {u"a@[`{", u"A@[`{", true},
        {u"@", u"`", false},
        {u"[", u"{", false},
        {u"\u00E4", u"\u00C4", false},
        {u"k", u"\u212A", false},  // the Kelvin sign
        {u"a\0b"sv, u"A\0B"sv, true},
        {u"a\0b"sv, u"A\0C"sv, false},
    };
    for (const auto& [left, right, areEqual] : pairs) {
        EXPECT_EQ(equalIgnoringCase(left, right), areEqual);
        EXPECT_EQ(equalIgnoringCase(right, left), areEqual);
    }
}

TEST(ASCIITest, ControlsBecomeSpaces)
{
    using namespace std::string_literals;
    EXPECT_EQ(withoutControls("a\nb\0c\x7F\x1F\t\xC2\x85"s), "a b c   \xC2\x85");
    EXPECT_EQ(withoutControls(u"a\r\n\u0080\u2028"s), u"a  \u0080\u2028");
    EXPECT_EQ(withoutControls(std::string()), "");
}

TEST(ASCIITest, TextsAreWidened)
{
    EXPECT_EQ(widened(""), u"");
    EXPECT_EQ(widened("#09af~"), u"#09af~");
}

}  // namespace
}  // namespace vantorel
