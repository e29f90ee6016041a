#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

/// Quadratic time would take hours here and so exceed the time limit of the test run.
namespace vantorel {
namespace {

void expectSoundReading(const Result<CSSColor>& reading)
{
    constexpr std::size_t longestSentence = 400;
    if (!reading) {
        const std::string sentence = english(reading.error());
        ASSERT_FALSE(sentence.empty());
        ASSERT_LT(sentence.size(), longestSentence);
        ASSERT_EQ(sentence.find('\n'), std::string::npos);
        return;
    }
    const auto c = reading->color.calibratedRGB().value();
    for (const double fraction : {c.red, c.green, c.blue, c.alpha})
        ASSERT_TRUE(fraction >= 0 && fraction <= 1) << fraction;  // NaN fails both
}

TEST(HostileColorTextTest, RandomBytesGiveAColourOrAnError)
{
    std::mt19937 random(20);
    for (int round = 0; round < 100000; ++round) {
        std::string text(random() % 40, '\0');
        for (char& c : text)
            c = static_cast<char>(random());
        ASSERT_NO_FATAL_FAILURE(expectSoundReading(readCSSColor(text)));
    }
}

TEST(HostileColorTextTest, RandomUnitsGiveAColourOrAnError)
{
    std::mt19937 random(21);
    for (int round = 0; round < 50000; ++round) {
        std::u16string text(random() % 20, u'\0');
        for (char16_t& c : text)
            c = static_cast<char16_t>(random());
        ASSERT_NO_FATAL_FAILURE(expectSoundReading(readCSSColor(text)));
    }
}

TEST(HostileColorTextTest, RandomPiecesOfColoursGiveAColourOrAnError)
{
    const std::vector<std::string> pieces{
        "rgb(",        "hsla(",       "hwb(",      "lab(",
        "lch(",        "oklab(",      "oklch(",    "color(",
        "srgb ",       "xyz ",        "rec2020 ",  "prophoto-rgb ",
        "a98-rgb ",    "display-p3 ", "xyz-d50 ",  ")",
        ")",           ")",           ",",         " / ",
        "/*",          "*/",          " ",         "1",
        "255",         "50%",         "-1e38",     "1e999",
        "-1e999%",     ".5",          "none",      "1e-999",
        "90deg",       "1turn",       "-1e99rad",  "99999999999",
        "0.000001",    "#",           "ff8000",    "red",
        ";",           "\\",          "\\0",       "e",
        "-",           "+",           ".",         "%",
        "\xC3\xA4",    "\xFF",        ":",         "from ",
        "\n",          "calc(",       "min(",      "clamp(",
        "(",           " + ",         " * ",       "infinity",
        "NaN",         "pi",          "r g b",     "alpha",
        "color-mix(",  "in hsl, ",    "in oklch ", "longer hue, ",
        "light-dark(", "red 40%, ",   "var(--x)"};
    const std::vector<std::string> functions{"lab(",
                                             "lch(",
                                             "oklab(",
                                             "oklch(",
                                             "hsl(",
                                             "hwb(",
                                             "rgb(",
                                             "color(srgb ",
                                             "color(xyz ",
                                             "color(rec2020 ",
                                             "color(xyz-d50 ",
                                             "color(a98-rgb ",
                                             "color(display-p3 ",
                                             "color(prophoto-rgb ",
                                             "color(srgb-linear ",
                                             "rgb(from red ",
                                             "lab(from color(xyz -1e38 1e38 0) ",
                                             "color(from oklch(1 1e38 9) a98-rgb ",
                                             "color(from hsl(9 1e38 7) rec2020 ",
                                             "oklch(from color-mix(in lab, red 9%, #1230) ",
                                             "hsl(from color(srgb 1e38 -1e38 0) "};
    const std::vector<std::string> numbers{"0",
                                           "1",
                                           "-1",
                                           "1e999",
                                           "-1e999",
                                           "1e38",
                                           "-1e38",
                                           "1e-40",
                                           "50",
                                           "100%",
                                           "1e99%",
                                           "none",
                                           "0.5",
                                           "-0",
                                           "1e10",
                                           "-1e20",
                                           "360",
                                           "1e5",
                                           "alpha",
                                           "calc(alpha / 0)",
                                           "calc(alpha * 1e38)"};
    const std::vector<std::string> spaces{"srgb", "xyz", "a98-rgb",          "rec2020", "hsl",
                                          "hwb",  "lab", "oklch longer hue", "lch",     "oklab"};
    std::mt19937 random(22);
    const auto one = [&random](const std::vector<std::string>& from) {
        return from[random() % from.size()];
    };
    int colors = 0;
    for (int round = 0; round < 100000; ++round) {
        std::string text;
        if (round % 2 == 0) {
            const std::size_t count = random() % 12;
            for (std::size_t i = 0; i < count; ++i)
                text += one(pieces);
        } else {
            text = one(functions) + one(numbers) + " " + one(numbers) + " " + one(numbers) + " / " +
                   one(numbers) + ")";
            if (round % 8 == 1)
                text.insert(0, ", red, ")
                    .insert(0, one(spaces))
                    .insert(0, "color-mix(in ")
                    .append(" 30%)");
        }
        const Result<CSSColor> reading = readCSSColor(text);
        ASSERT_NO_FATAL_FAILURE(expectSoundReading(reading)) << text;
        if (reading) ++colors;
    }
    EXPECT_GT(colors, 30000);
}

std::string repeated(const std::string& piece, std::size_t bytes)
{
    std::string text;
    while (text.size() < bytes)
        text += piece;
    return text;
}

TEST(HostileColorTextTest, MegabytesTakeLinearTime)
{
    constexpr std::size_t size = std::size_t{1} << 20;
    for (const char* piece : {"(",
                              "rgb(",
                              "/*",
                              "/**/",
                              "*/",
                              " ",
                              "\\",
                              "\\a",
                              "#",
                              "f",
                              "1",
                              "0",
                              ".",
                              "-",
                              "e",
                              "1e",
                              "1 ",
                              ",",
                              "/",
                              "a",
                              "red ",
                              "\xFF",
                              "\xC3\xA4",
                              "rgb(1 2 3) ",
                              ";",
                              "calc(",
                              "calc(1 + ",
                              "1 + ",
                              "min(1, ",
                              "rgb(from ",
                              "color-mix(in lab, "}) {
        const std::string many = repeated(piece, size);
        expectSoundReading(readCSSColor(many));
        expectSoundReading(readCSSColor("rgb(" + many));
        expectSoundReading(readCSSColor("rgb(1 2 3 / 1" + many + ")"));
        expectSoundReading(readCSSColor("rgb(calc(1 + " + many + ")"));
        expectSoundReading(readCSSColor("red " + many));
        expectSoundReading(readCSSColor("#" + many));
    }
    expectSoundReading(readCSSColor(std::string(size, '\0')));
}

TEST(HostileColorTextTest, AColourMayContainMegabytesOfCommentsZerosAndBlanks)
{
    constexpr std::size_t size = std::size_t{2} << 20;
    const HostColor expected = HostColor::colorWithCalibratedRed(1, 0, 0, 1);
    for (const std::string& text :
         {repeated("/* */", size) + "red", "red" + repeated(" ", size) + ";",
          "red" + repeated(std::string(1, '\0'), size), "rgb(" + repeated("0", size) + "255 0 0)",
          "rgb(255." + repeated("0", size) + " 0 0)",
          "rgb(255" + repeated("0", size) + " 0." + repeated("0", size) + "1 0)",
          "rgb(255 0" + repeated(" ", size) + "0" + repeated("/**/", size) + ")"}) {
        const Result<CSSColor> reading = readCSSColor(text);
        ASSERT_TRUE(reading);
        const auto c = reading->color.calibratedRGB().value();
        EXPECT_EQ(c.red, 1);
        EXPECT_NEAR(c.green, 0, 1e-9);
        EXPECT_EQ(c.blue, expected.calibratedRGB()->blue);
    }
}

}  // namespace
}  // namespace vantorel
