#include "csscolor/CSSColorReader.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

struct ErrorRow {
    const char* text;
    const char* error;
};

void expectErrors(const std::vector<ErrorRow>& rows)
{
    for (const ErrorRow& row : rows) {
        const Result<CSSColor> reading = readCSSColor(row.text);
        ASSERT_FALSE(reading) << row.text;
        EXPECT_EQ(english(reading.error()) + '.', row.error) << row.text;
    }
}

constexpr const char* noColor =
    R"~(The text holds no colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~";
constexpr const char* commentUnclosed =
    R"~(The comment that begins with "/*" has no end; close it with "*/".)~";

TEST(CSSColorErrorsTest, TextsWithoutAColour)
{
    expectErrors({
        {"", noColor},
        {" \t\n", noColor},
        {"/* red */", noColor},
        {"/* red", commentUnclosed},
        {"/*/", commentUnclosed},
        {"50%",
         R"~("50%" is no colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"12px",
         R"~("12px" is no colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {";", R"~(";" is no colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"\"red\"",
         R"~(""" is no colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"(red)",
         R"~("(" is no colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
    });
}

TEST(CSSColorErrorsTest, HexColours)
{
    expectErrors({
        {"#", R"~(A hex colour has 3, 4, 6 or 8 digits after the "#", not 0.)~"},
        {"#12", R"~(A hex colour has 3, 4, 6 or 8 digits after the "#", not 2.)~"},
        {"#12345", R"~(A hex colour has 3, 4, 6 or 8 digits after the "#", not 5.)~"},
        {"#1234567", R"~(A hex colour has 3, 4, 6 or 8 digits after the "#", not 7.)~"},
        {"#123456789", R"~(A hex colour has 3, 4, 6 or 8 digits after the "#", not 9.)~"},
        {"# fff", R"~(A hex colour has 3, 4, 6 or 8 digits after the "#", not 0.)~"},
        {"#ggg",
         R"~("g" is no hex digit; after "#" come digits from 0 to 9 and letters from a to f.)~"},
        {"#ff80x0",
         R"~("x" is no hex digit; after "#" come digits from 0 to 9 and letters from a to f.)~"},
        {"#ff\xF0\x9F\x8E\xA8",
         "\"\xF0\x9F\x8E\xA8\" is no hex digit; after \"#\" come digits from 0 "
         "to 9 and letters "
         "from a to f."},
        {"12", R"~(A hex colour without "#" has 3 or 6 digits, not 2.)~"},
        {"ff80", R"~(A hex colour without "#" has 3 or 6 digits, not 4.)~"},
        {"ff8000cc;", R"~(A hex colour without "#" has 3 or 6 digits, not 8.)~"},
    });
}

TEST(CSSColorErrorsTest, Names)
{
    expectErrors({
        {"redd",
         R"~("redd" is no colour name of CSS; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"beef",
         R"~("beef" is no colour name of CSS; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"inherit",
         R"~("inherit" is no colour name of CSS; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"aVeryLongNameThatNoColourHas",
         R"~("aVeryLongNameThatNoColou..." is no colour name of CSS; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"currentColor",
         R"~("currentColor" has no colour without the page where it stands; write a fixed one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"Canvas",
         R"~("Canvas" has no colour without the page where it stands; write a fixed one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
    });
}

TEST(CSSColorErrorsTest, PropertiesAndOtherTextAroundTheColour)
{
    expectErrors({
        {"color: red;",
         R"~(The property "color" does not belong to the colour; give its value alone, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"background-color:#fff",
         R"~(The property "background-color" does not belong to the colour; give its value alone, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"background : red",
         R"~(The property "background" does not belong to the colour; give its value alone, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"--accent: red",
         R"~(The property "--accent" does not belong to the colour; give its value alone, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"red blue", R"~("blue" follows the colour; give one colour alone.)~"},
        {"red, blue", R"~(", blue" follows the colour; give one colour alone.)~"},
        {"#fff #000", R"~("#000" follows the colour; give one colour alone.)~"},
        {"fff 000", R"~("000" follows the colour; give one colour alone.)~"},
        {"rgb(1 2 3) 40%", R"~("40%" follows the colour; give one colour alone.)~"},
        {"red;;", R"~(";" follows the colour; give one colour alone.)~"},
        {"red !important", R"~("!important" follows the colour; give one colour alone.)~"},
        {"red; background: white; margin: 0",
         R"~("background: white; margi..." follows the colour; give one colour alone.)~"},
        {"red /* a", commentUnclosed},
    });
}

TEST(CSSColorErrorsTest, Functions)
{
    expectErrors({
        {"cmyk(1 2 3)",
         R"~("cmyk" is no colour function that can be read; rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() and color() are.)~"},
        {"var(--accent)",
         R"~("var" is no colour function that can be read; rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() and color() are.)~"},
        {"rgb (1 2 3)",
         R"~(Nothing may stand between "rgb" and its parenthesis; write "rgb(255 128 0 / 50%)".)~"},
        {"hsl/**/(1 2 3)",
         R"~(Nothing may stand between "hsl" and its parenthesis; write "hsl(30 100% 50% / 50%)".)~"},
        {"rgb(from red r g b)",
         R"~(A colour relative to another, with "from", cannot be read; write its values, as in "rgb(255 128 0 / 50%)".)~"},
        {"rgb(calc(5) 2 3)",
         R"~("calc" cannot be read inside a colour; write the number that it results in.)~"},
        {"rgb(1 2 3", R"~(rgb() has no end; close it with a ")" after its values.)~"},
        {"rgb(1, 2,", R"~(rgb() has no end; close it with a ")" after its values.)~"},
        {"rgb(1 2 3 /", R"~(rgb() has no end; close it with a ")" after its values.)~"},
        {"rgb(1 2 3 / 1", R"~(rgb() has no end; close it with a ")" after its values.)~"},
        {"rgb(1 2 3 /* )", commentUnclosed},
        {"rgb(1 /* 2 3)", commentUnclosed},
    });
}

TEST(CSSColorErrorsTest, TheNumberOfValues)
{
    expectErrors({
        {"rgb()", R"~(rgb() needs 3 values and has 0; write "rgb(255 128 0 / 50%)".)~"},
        {"RGBA(1 2)", R"~(rgba() needs 3 values and has 2; write "rgb(255 128 0 / 50%)".)~"},
        {"lab(1)", R"~(lab() needs 3 values and has 1; write "lab(67 42 74 / 50%)".)~"},
        {"rgb(1,2)", R"~(rgb() needs 3 values and has 2; write "rgb(255 128 0 / 50%)".)~"},
        {"color(srgb 1 1)",
         R"~(color() needs 3 values and has 2; write "color(display-p3 1 0.5 0 / 50%)".)~"},
        {"rgb(1 2 3 4)",
         R"~(In rgb() "4" stands where its ")" belongs; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1 2 3 / 4 5)",
         R"~(In rgb() "5" stands where its ")" belongs; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1 2 3 / 1 / 1)",
         R"~(In rgb() "/" stands where its ")" belongs; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1,2,3,4,5)",
         R"~(In rgb() "," stands where its ")" belongs; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1 2 3;)",
         R"~(In rgb() ";" stands where its ")" belongs; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1,,2)",
         R"~(The green of rgb() is missing before ","; write a number or a percentage there.)~"},
        {"rgb(,1,2)",
         R"~(The red of rgb() is missing before ","; write a number or a percentage there.)~"},
        {"oklch(50% 0.1 / 1)",
         R"~(The hue of oklch() is missing before "/"; write an angle or a number there.)~"},
        {"rgb(1 2 3 /)",
         R"~(The alpha of rgb() is missing; write a number or a percentage before the ")".)~"},
        {"rgb(1,2,3,)",
         R"~(The alpha of rgb() is missing; write a number or a percentage before the ")".)~"},
    });
}

TEST(CSSColorErrorsTest, Commas)
{
    expectErrors({
        {"rgb(1 2, 3)",
         R"~(The values of rgb() are parted all by commas or all by blanks; write "rgb(255 128 0 / 50%)" or "rgb(255, 128, 0, 0.5)".)~"},
        {"hsl(1, 2% 3%)",
         R"~(The values of hsl() are parted all by commas or all by blanks; write "hsl(30 100% 50% / 50%)" or "hsl(30, 100%, 50%, 0.5)".)~"},
        {"rgb(1 2 3, 0.5)",
         R"~(The values of rgb() are parted all by commas or all by blanks; write "rgb(255 128 0 / 50%)" or "rgb(255, 128, 0, 0.5)".)~"},
        {"rgb(1, 2, 3 / 0.5)",
         R"~(In rgb() with commas the alpha follows a comma; write "rgb(255, 128, 0, 0.5)".)~"},
        {"hwb(30, 0%, 0%)",
         R"~(hwb() has no commas between its values; write "hwb(30 0% 0% / 50%)".)~"},
        {"lch(50 20, 30)",
         R"~(lch() has no commas between its values; write "lch(67 85 60 / 50%)".)~"},
        {"oklab(0.5 0.1 0.1, 0.5)",
         R"~(In oklab() the alpha follows a "/"; write "oklab(73% 0.1 0.15 / 50%)".)~"},
        {"rgb(none, 2, 3)", R"~("none" does not go with commas; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1, 2, 3, none)",
         R"~("none" does not go with commas; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(10%, 20, 30)",
         R"~(With commas the values of rgb() are all numbers or all percentages; write "rgb(255, 128, 0, 0.5)".)~"},
        {"hsl(30, 100, 50%)",
         R"~(With commas the saturation of hsl() is a percentage; write "hsl(30, 100%, 50%, 0.5)".)~"},
        {"hsla(30, 100%, 50, 1)",
         R"~(With commas the lightness of hsla() is a percentage; write "hsl(30, 100%, 50%, 0.5)".)~"},
    });
}

TEST(CSSColorErrorsTest, KindsOfValues)
{
    expectErrors({
        {"rgb(red 2 3)", R"~(The red of rgb() is a number or a percentage, not "red".)~"},
        {"rgb(1px 2 3)", R"~(The red of rgb() is a number or a percentage, not "1px".)~"},
        {"rgb(1 2deg 3)", R"~(The green of rgb() is a number or a percentage, not "2deg".)~"},
        {"rgb(1 2 #3)", R"~(The blue of rgb() is a number or a percentage, not "#3".)~"},
        {"rgb(1. 2 3)", R"~(The green of rgb() is a number or a percentage, not ".".)~"},
        {"rgb(1 % 3)", R"~(The green of rgb() is a number or a percentage, not "%".)~"},
        {"rgb(1 2 3 / 1deg)", R"~(The alpha of rgb() is a number or a percentage, not "1deg".)~"},
        {"hsl(10% 20% 30%)", R"~(The hue of hsl() is an angle or a number, not "10%".)~"},
        {"lch(10% 20 x)", R"~(The hue of lch() is an angle or a number, not "x".)~"},
        {"hsl(10px 20% 30%)",
         R"~("10px" is no angle; the units of angles are deg, grad, rad and turn.)~"},
        {"color(xyz 1 y 3)", R"~(The Y of color() is a number or a percentage, not "y".)~"},
        {"color(srgb 1 g 3)", R"~(The green of color() is a number or a percentage, not "g".)~"},
        {"color(p3 1 2 3)",
         R"~("p3" is no colour space of color(); write srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 or xyz-d65.)~"},
        {"color(1 2 3)",
         R"~(color() begins with a colour space: srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 or xyz-d65.)~"},
    });
}

}  // namespace
}  // namespace vantorel
