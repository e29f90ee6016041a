#include "csscolor/CSSColorReader.h"

#include "csscolor/CSSNamedColors.h"
#include "text/ASCII.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace vantorel {

namespace {

using Form = CSSColorForm;

/// Expects a colour of channels 0..255.
void expectColor(std::string_view text, double red, double green, double blue, double alpha,
                 double tolerance = 1e-9)
{
    const Result<CSSColor> reading = readCSSColor(text);
    ASSERT_TRUE(reading) << text << ": " << english(reading.error());
    const auto components = *reading->color.calibratedRGB();
    EXPECT_NEAR(components.red * 255, red, tolerance) << text;
    EXPECT_NEAR(components.green * 255, green, tolerance) << text;
    EXPECT_NEAR(components.blue * 255, blue, tolerance) << text;
    EXPECT_NEAR(components.alpha, alpha, 1e-9) << text;
}

struct ReaderRow {
    const char* text;
    double red, green, blue, alpha;
    Form form;
};

TEST(CSSColorReaderTest, EveryFormOfSRGBIsReadExactly)
{
    const std::vector<ReaderRow> rows{
        {"#f80", 255, 136, 0, 1, Form::hex},
        {"#F80c", 255, 136, 0, 0.8, Form::hex},
        {"#ff8000", 255, 128, 0, 1, Form::hex},
        {"#Ff800000", 255, 128, 0, 0, Form::hex},
        {"f80", 255, 136, 0, 1, Form::bareHex},
        {"1e3", 17, 238, 51, 1, Form::bareHex},
        {"123456", 18, 52, 86, 1, Form::bareHex},
        {"decade", 222, 202, 222, 1, Form::bareHex},
        {"orange", 255, 165, 0, 1, Form::named},
        {"ReBeccaPurple", 102, 51, 153, 1, Form::named},
        {"TRANSPARENT", 0, 0, 0, 0, Form::named},
        {"rgb(255, 128, 0)", 255, 128, 0, 1, Form::rgb},
        {"RGB(255, 128, 0);", 255, 128, 0, 1, Form::rgb},
        {"rgb(255,128,0,.5)", 255, 128, 0, 0.5, Form::rgb},
        {"rgba(255, 128, 0, 50%)", 255, 128, 0, 0.5, Form::rgb},
        {"rgb(100%, 20%, 0%)", 255, 51, 0, 1, Form::rgb},
        {"rgb(255 128 0)", 255, 128, 0, 1, Form::rgb},
        {"rgba(255 128 0 / 25%)", 255, 128, 0, 0.25, Form::rgb},
        {"rgb(255 20% none / none)", 255, 51, 0, 0, Form::rgb},
        {"rgb(2.55e2 1.28E+2 0e5)", 255, 128, 0, 1, Form::rgb},
        {"rgb(127.5 +1 -0)", 127.5, 1, 0, 1, Form::rgb},
        {"rgb(1.5.5.25)", 1.5, 0.5, 0.25, 1, Form::rgb},
        {"rgb(1+2+3)", 1, 2, 3, 1, Form::rgb},
        {"rgb(20%40%60%)", 51, 102, 153, 1, Form::rgb},
        {"hsl(120deg 100% 50%)", 0, 255, 0, 1, Form::hsl},
        {"hsl(120, 75%, 25%)", 15.9375, 111.5625, 15.9375, 1, Form::hsl},
        {"hsla(270 60 50 / 15%)", 127.5, 51, 204, 0.15, Form::hsl},
        {"hsl(0.5turn, 100%, 50%, 1)", 0, 255, 255, 1, Form::hsl},
        {"hsl(400grad 100% 50%)", 255, 0, 0, 1, Form::hsl},
        {"hsl(-240 100% 50%)", 0, 255, 0, 1, Form::hsl},
        {"hsl(480 100% 50%)", 0, 255, 0, 1, Form::hsl},
        {"hsl(none 100% 50%)", 255, 0, 0, 1, Form::hsl},
        {"hwb(120 0% 0%)", 0, 255, 0, 1, Form::hwb},
        {"hwb(90 20% 40% / 0.5)", 102, 153, 51, 0.5, Form::hwb},
        {"hwb(300 60 20)", 204, 153, 204, 1, Form::hwb},
        {"hwb(10deg 100% 300%)", 63.75, 63.75, 63.75, 1, Form::hwb},
        {"color(srgb 1 0.5 0)", 255, 127.5, 0, 1, Form::color},
        {"COLOR(SRGB 100% 20% none / 30%)", 255, 51, 0, 0.3, Form::color},
    };
    for (const ReaderRow& row : rows) {
        expectColor(row.text, row.red, row.green, row.blue, row.alpha);
        const Result<CSSColor> reading = readCSSColor(row.text);
        ASSERT_TRUE(reading);
        EXPECT_EQ(reading->form, row.form) << row.text;
        EXPECT_FALSE(reading->wasOutsideSRGB) << row.text;
        EXPECT_EQ(readCSSColor(utf16FromUtf8(row.text))->color, reading->color);
    }
}

TEST(CSSColorReaderTest, AnglesInRadiansAreRead)
{
    expectColor("hsl(3.14159265358979rad 100% 50%)", 0, 255, 255, 1, 1e-6);
}

/// CSS Color 4 gives the same five colours as examples of lab(), lch(), oklab() and oklch(); the
/// hex codes are those of its swatches.
TEST(CSSColorReaderTest, TheExamplesOfTheSpecificationGiveTheirSwatches)
{
    struct Example {
        const char* hex;
        std::vector<const char*> texts;
    };
    const std::vector<Example> examples{
        {"#7d2329",
         {"lab(29.2345% 39.3825 20.0664)", "lch(29.2345% 44.2 27)", "oklab(40.101% 0.1147 0.0453)",
          "oklch(40.101% 0.12332 21.555)"}},
        {"#c65d06",
         {"lab(52.2345% 40.1645 59.9971)", "lch(52.2345% 72.2 56.2)",
          "oklab(59.686% 0.1009 0.1192)", "oklch(59.686% 0.15619 49.7694)"}},
        {"#9d9318",
         {"lab(60.2345% -5.3654 58.956)", "lch(60.2345% 59.2 95.2)",
          "oklab(0.65125 -0.0320 0.1274)", "oklch(0.65125 0.13138 104.097)"}},
        {"#68a639",
         {"lab(62.2345% -34.9638 47.7721)", "lch(62.2345% 59.2 126.2)",
          "oklab(66.016% -0.1084 0.1114)", "oklch(0.66016 0.15546 134.231)"}},
        {"#62acef",
         {"lab(67.5345% -8.6911 -41.6019)", "lch(67.5345% 42.5 258.2)",
          "oklab(72.322% -0.0465 -0.1150)", "oklch(72.322% 0.12403 247.996)"}},
    };
    for (const Example& example : examples) {
        const auto swatch = *readCSSColor(example.hex)->color.calibratedRGB();
        for (const char* text : example.texts)
            expectColor(text, swatch.red * 255, swatch.green * 255, swatch.blue * 255, 1, 1.0);
    }
}

struct AnchorRow {
    const char* text;
    double red, green, blue;
    double tolerance;
};

TEST(CSSColorReaderTest, WellKnownColoursAreReadFromEverySpace)
{
    const std::vector<AnchorRow> rows{
        {"oklch(62.796% 0.25768 29.234)", 255, 0, 0, 0.1},
        {"oklch(86.644% 0.29483 142.495)", 0, 255, 0, 0.1},
        {"oklch(45.201% 0.31321 264.052)", 0, 0, 255, 0.1},
        {"oklab(0.62796 0.22486 0.12585)", 255, 0, 0, 0.1},
        {"lab(54.29 80.8 69.89)", 255, 0, 0, 0.5},
        {"lch(54.29 106.84 40.86)", 255, 0, 0, 0.5},
        {"lab(100 0 0)", 255, 255, 255, 1e-3},
        {"lab(53.585 0 0)", 128, 128, 128, 0.1},
        {"oklab(100% 0 0)", 255, 255, 255, 1e-3},
        {"oklab(59.987% 0 0)", 128, 128, 128, 0.1},
        {"color(srgb-linear 1 0.21586 0)", 255, 128, 0, 0.1},
        {"color(display-p3 0.9175 0.2003 0.1386)", 255, 0, 0, 0.3},
        {"color(display-p3 0.4584 0.9853 0.2983)", 0, 255, 0, 0.3},
        {"color(display-p3-linear 0.8225 0.0332 0.0171)", 255, 0, 0, 0.3},
        {"color(a98-rgb 0.8586 0 0)", 255, 0, 0, 0.3},
        {"color(prophoto-rgb 0.7022 0.2757 0.1036)", 255, 0, 0, 0.5},
        {"color(rec2020 0.5 0.5 0.5)", 120.4875, 120.4875, 120.4875,
         1e-3},  // 0.5 ^ 2.4 in linear light
        {"color(xyz 0.4124 0.2126 0.0193)", 255, 0, 0, 0.3},
        {"color(xyz-d65 0.95046 1 108.9058%)", 255, 255, 255, 0.1},
        {"color(xyz-d50 0.96430 1 0.82510)", 255, 255, 255, 0.1},
        {"color(display-p3 1 1 1)", 255, 255, 255, 1e-3},
        {"color(a98-rgb 1 1 1)", 255, 255, 255, 1e-3},
        {"color(prophoto-rgb 1 1 1)", 255, 255, 255, 1e-3},
        {"color(rec2020 1 1 1)", 255, 255, 255, 1e-3},
    };
    for (const AnchorRow& row : rows) {
        expectColor(row.text, row.red, row.green, row.blue, 1, row.tolerance);
        EXPECT_FALSE(readCSSColor(row.text)->wasOutsideSRGB) << row.text;
    }
}

struct SameRow {
    const char* text;
    const char* plain;
};

TEST(CSSColorReaderTest, TextsOfTheSameColourAreReadAlike)
{
    const std::vector<SameRow> rows{
        // Percentages of each kind of value.
        {"lab(50% 40% -40%)", "lab(50 50 -50)"},
        {"lch(50% 20% 60)", "lch(50 30 60)"},
        {"oklab(50% 25% -25%)", "oklab(0.5 0.1 -0.1)"},
        {"oklch(50% 25% 60)", "oklch(0.5 0.1 60)"},
        {"color(xyz 20% 30% 40%)", "color(xyz 0.2 0.3 0.4)"},
        // Values out of range are clamped where CSS says so.
        {"rgb(300 -20 0)", "rgb(255 0 0)"},
        {"rgb(120%, -10%, 0%)", "rgb(100%, 0%, 0%)"},
        {"rgb(1 2 3 / 5)", "rgb(1 2 3)"},
        {"rgb(1 2 3 / -5%)", "rgb(1 2 3 / 0)"},
        {"hsl(40 -30% 50%)", "hsl(40 0% 50%)"},
        {"hsl(40 300% 120%)", "white"},
        {"lab(120 0 0)", "lab(100 0 0)"},
        {"lab(-5% 0 0)", "lab(0 0 0)"},
        {"lch(50 -20 30)", "lch(50 0 30)"},
        {"oklab(-1 0 0)", "oklab(0 0 0)"},
        {"oklch(50% -0.1 30)", "oklch(50% 0 30)"},
        // Hues wrap.
        {"oklch(50% 0.1 -330)", "oklch(50% 0.1 30)"},
        {"lch(50 30 390deg)", "lch(50 30 30)"},
        {"hsl(1e30turn 100% 50%)", "hsl(0 100% 50%)"},
        // Missing values count as zero.
        {"lab(none 20 30)", "lab(0 20 30)"},
        {"oklch(0.5 none none)", "oklch(0.5 0 0)"},
        {"color(xyz NONE 0.3 0.4 / None)", "color(xyz 0 0.3 0.4 / 0)"},
        // Comments and white space are ignored.
        {" \t\r\n\f#f80 \n", "#f80"},
        {"/**//* rgb( */rgb(/**/1/**/2/* , */3/**/)/* ; */;/**/ ", "rgb(1 2 3)"},
        {"/* bare */f80/**/;", "#f80"},
        {"rgb( 1 , 2 , 3 )", "rgb(1,2,3)"},
        {"rgb(1 2 3/.5)", "rgb(1 2 3 / 50%)"},
        // CSS escapes.
        {"\\72 ed", "red"},
        {"R\\45\r\nd", "red"},
        {"#\\66 80", "#f80"},
        {"\\000072gb(1 2 3)", "rgb(1 2 3)"},
        {"hsl(120\\64 eg 100% 50%)", "lime"},
        // Numbers beyond the range of double.
        {"rgb(1e999999999999999999999 0 0)", "rgb(255 0 0)"},
        {"rgb(-1e999999999999999999999 0 0)", "rgb(0 0 0)"},
        {"rgb(1e-999999999999999999999 0 0)", "rgb(0 0 0)"},
        {"rgb(0e999999999999999999999 0 0)", "rgb(0 0 0)"},
        // What programs put around a dropped text.
        {"\xEF\xBB\xBFred", "red"},
        {"\xC2\xA0red\xC2\xA0", "red"},
    };
    for (const SameRow& row : rows) {
        const Result<CSSColor> reading = readCSSColor(row.text);
        const Result<CSSColor> plain = readCSSColor(row.plain);
        ASSERT_TRUE(plain) << row.plain;
        ASSERT_TRUE(reading) << row.text << ": " << english(reading.error());
        const auto c = *plain->color.calibratedRGB();
        expectColor(row.text, c.red * 255, c.green * 255, c.blue * 255, c.alpha);
    }
}

TEST(CSSColorReaderTest, TrailingNULsAreIgnored)
{
    using namespace std::string_view_literals;
    for (const auto text : {"red\0"sv, "red;\0\0\0"sv, "f00 \0 \0\n"sv})
        expectColor(text, 255, 0, 0, 1);
    for (const auto text : {"\0red"sv, "r\0ed"sv, "rgb(1 2\0 3)"sv, "\0"sv, "red\0red"sv})
        EXPECT_FALSE(readCSSColor(text));
}

TEST(CSSColorReaderTest, DigitsCountOnBothSidesOfThePoint)
{
    const std::string zeros(400, '0');
    expectColor("rgb(0." + zeros + "12e403 0 0)", 120, 0, 0, 1);
    expectColor("rgb(12" + zeros + "e-400 0 0)", 12, 0, 0, 1);
    expectColor("rgb(" + zeros + "12." + zeros + "5 0 0)", 12, 0, 0, 1);
    expectColor("rgb(12.3456789012345678901234567890123456789012345678901234567890 0 0)",
                12.3456789012345678, 0, 0, 1);
}

TEST(CSSColorReaderTest, ColoursOutsideSRGBAreReportedAndMappedIntoIt)
{
    for (const char* text :
         {"color(display-p3 1 0 0)", "color(rec2020 0 1 0)", "color(a98-rgb 0 1 0)",
          "color(prophoto-rgb 0 0 1)", "color(srgb 1.1 0 0)", "color(srgb 0 -0.1 0)",
          "color(srgb-linear 2 0 0)", "color(xyz 0 1 0)", "color(xyz-d50 0.1 0.3 0.1)",
          "oklch(70% 0.4 150)", "oklab(0.5 0.4 -0.4)", "lch(50 150 120)", "lab(50 125 -125)",
          "hsl(40 200% 50%)", "hwb(40 -20% 0%)", "oklch(50% 1e38 30)", "lab(50 1e99 -1e99)"}) {
        const Result<CSSColor> reading = readCSSColor(text);
        ASSERT_TRUE(reading) << text;
        EXPECT_TRUE(reading->wasOutsideSRGB) << text;
        const auto c = *reading->color.calibratedRGB();
        for (const double channel : {c.red, c.green, c.blue}) {
            EXPECT_GE(channel, 0) << text;
            EXPECT_LE(channel, 1) << text;
        }
    }
}

TEST(CSSColorReaderTest, HugeChromasKeepTheirLightnessAndHue)
{
    const auto nearby = *readCSSColor("oklch(50% 0.4 30)")->color.calibratedRGB();
    expectColor("oklch(50% 1e38 30)", nearby.red * 255, nearby.green * 255, nearby.blue * 255, 1,
                0.5);
}

TEST(CSSColorReaderTest, HSLAndHWBAreClippedAndNotMapped)
{
    expectColor("hsl(40 200% 50%)", 255, 212.5, 0, 1);
    expectColor("hwb(40 -50% 0%)", 255, 127.5, 0, 1);
}

TEST(CSSColorReaderTest, ChannelsThatJustMissAHalfAreRoundedUp)
{
    const auto red = [](const std::string& text) {
        return std::lround(readCSSColor(text)->color.calibratedRGB()->red * 255);
    };
    EXPECT_EQ(red("rgb(76.5 0 0)"), 77);
    EXPECT_EQ(red("rgb(76.4999999995 0 0)"), 77) << "less than a billionth";
    EXPECT_EQ(red("rgb(76.4999999985 0 0)"), 76);
    EXPECT_EQ(red("rgb(254.5 0 0)"), 255);
    EXPECT_EQ(red("rgb(0.5 0 0)"), 1);
    EXPECT_EQ(red("rgb(0.4999 0 0)"), 0);
    EXPECT_EQ(red("hwb(120 30% 50%)"), 77);
}

TEST(CSSColorReaderTest, NamedColoursHaveTheirValues)
{
    struct NameRow {
        const char16_t* name;
        std::uint32_t value;
    };
    for (const NameRow& row : std::vector<NameRow>{{u"aliceblue", 0xF0F8FF},
                                                   {u"antiquewhite", 0xFAEBD7},
                                                   {u"darkmagenta", 0x8B008B},
                                                   {u"darkslateblue", 0x483D8B},
                                                   {u"gray", 0x808080},
                                                   {u"grey", 0x808080},
                                                   {u"lightgoldenrodyellow", 0xFAFAD2},
                                                   {u"lightslategrey", 0x778899},
                                                   {u"mediumvioletred", 0xC71585},
                                                   {u"papayawhip", 0xFFEFD5},
                                                   {u"rebeccapurple", 0x663399},
                                                   {u"yellowgreen", 0x9ACD32}}) {
        EXPECT_EQ(cssNamedColor(row.name), row.value);
    }
    EXPECT_FALSE(cssNamedColor(u"zinc"));
    EXPECT_FALSE(cssNamedColor(u""));
}

TEST(CSSColorReaderTest, EveryNameIsFoundInAnyCaseAndNothingLikeIt)
{
    for (const CSSNamedColor& color : cssNamedColors()) {
        const std::u16string name(color.name);
        const std::string ascii(name.begin(), name.end());
        EXPECT_EQ(cssNamedColor(name), color.value) << ascii;
        EXPECT_EQ(cssNamedColor(ascii), color.value) << ascii;
        EXPECT_EQ(cssNamedColor(upperCased(name)), color.value) << ascii;
        EXPECT_EQ(cssNamedColor(upperCased(ascii)), color.value) << ascii;
        for (const std::string& other :
             {ascii + 'x', ascii + ' ', ' ' + ascii, ascii + '1', ascii + '\0', "\xE9" + ascii,
              ascii.substr(1) + '\xE9', ascii + std::string(1 << 16, 'x')}) {
            EXPECT_FALSE(cssNamedColor(other)) << ascii;
        }
        EXPECT_FALSE(cssNamedColor(name + u'\u0130')) << ascii;
    }
}

TEST(CSSColorReaderTest, NumbersAreReadAsTheNearestDouble)
{
    std::mt19937 random(13);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    for (int i = 0; i < 20'000; ++i) {
        std::string number = below(2) == 0 ? "" : "-";
        for (std::size_t digits = below(18); digits > 0; --digits)
            number += static_cast<char>('0' + below(10));
        number += '.';
        for (std::size_t digits = 1 + below(18); digits > 0; --digits)
            number += static_cast<char>('0' + below(10));
        const auto color = readCSSColor("color(srgb " + number + " 0 0)");
        ASSERT_TRUE(color) << number;
        EXPECT_EQ(color->value.components[0], std::strtod(number.c_str(), nullptr)) << number;
    }
    // A zero has no sign.
    EXPECT_FALSE(std::signbit(readCSSColor("color(srgb -0.0 0 0)")->value.components[0]));
}

TEST(CSSColorReaderTest, ATextStartsAsAColourFunctionByItsFirstWord)
{
    for (const char16_t* text :
         {u"rgb(", u" OKLCH(1 2", u"color-mix(in", u"light-dark(a", u"hwb()x"})
        EXPECT_TRUE(startsCSSColorFunction(text)) << utf8FromUtf16(text);
    for (const char16_t* text :
         {u"", u"rgb", u"rgb (", u"calc(1)", u"var(--a)", u"red", u"a rgb(1"})
        EXPECT_FALSE(startsCSSColorFunction(text)) << utf8FromUtf16(text);
}

TEST(CSSColorReaderTest, BothSpellingsOfGreyNameOneColour)
{
    for (const std::string prefix :
         {"", "dark", "darkslate", "dim", "light", "lightslate", "slate"}) {
        const auto gray = readCSSColor(prefix + "gray");
        const auto grey = readCSSColor(prefix + "grey");
        ASSERT_TRUE(gray && grey) << prefix;
        EXPECT_EQ(gray->color, grey->color);
    }
}

}  // namespace
}  // namespace vantorel
