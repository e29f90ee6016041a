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
    R"~(The text contains no colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~";
constexpr const char* commentUnclosed =
    R"~(The comment that starts with "/*" is not closed; close it with "*/".)~";

TEST(CSSColorErrorsTest, TextsWithoutAColour)
{
    expectErrors({
        {"", noColor},
        {" \t\n", noColor},
        {"/* red */", noColor},
        {"/* red", commentUnclosed},
        {"/*/", commentUnclosed},
        {"50%",
         R"~("50%" is not a colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"12px",
         R"~("12px" is not a colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {";",
         R"~(";" is not a colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"\"red\"",
         R"~(""" is not a colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"(red)",
         R"~("(" is not a colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
    });
}

TEST(CSSColorErrorsTest, ABackslashBeforeALineEndIsNoEscape)
{
    constexpr const char* error =
        R"~("\" is not a colour; write one such as "#ff8000", "rgb(255 128 0)" or "orange".)~";
    expectErrors({{"\\\n64 ", error}, {"\\\r64 ", error}, {"\\\f64 ", error}});
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
         R"~("g" is not a hex digit; use digits 0 to 9 and letters a to f after the "#".)~"},
        {"#ff80x0",
         R"~("x" is not a hex digit; use digits 0 to 9 and letters a to f after the "#".)~"},
        {"#ff\xF0\x9F\x8E\xA8g",
         "\"\xF0\x9F\x8E\xA8\" is not a hex digit; use digits 0 to 9 and letters a to f after the "
         "\"#\"."},
        {"12", R"~(A hex colour without "#" has 3 or 6 digits, not 2.)~"},
        {"ff80", R"~(A hex colour without "#" has 3 or 6 digits, not 4.)~"},
        {"ff8000cc;", R"~(A hex colour without "#" has 3 or 6 digits, not 8.)~"},
    });
}

TEST(CSSColorErrorsTest, Names)
{
    expectErrors({
        {"redd",
         R"~("redd" is not a CSS colour name; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"beef",
         R"~("beef" is not a CSS colour name; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"inherit",
         R"~("inherit" is not a CSS colour name; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"aVeryLongNameThatNoColourHas",
         R"~("aVeryLongNameThatNoColou..." is not a CSS colour name; write a colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"currentColor",
         R"~(The colour of "currentColor" depends on the page that uses it; write a fixed colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"Canvas",
         R"~(The colour of "Canvas" depends on the page that uses it; write a fixed colour such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
    });
}

TEST(CSSColorErrorsTest, PropertiesAndOtherTextAroundTheColour)
{
    expectErrors({
        {"color: red;",
         R"~("color" is a property, not part of the colour; give only its value, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"background-color:#fff",
         R"~("background-color" is a property, not part of the colour; give only its value, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"background : red",
         R"~("background" is a property, not part of the colour; give only its value, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"--accent: red",
         R"~("--accent" is a property, not part of the colour; give only its value, such as "#ff8000", "rgb(255 128 0)" or "orange".)~"},
        {"red blue", R"~("blue" follows the colour; give a single colour.)~"},
        {"red, blue", R"~(", blue" follows the colour; give a single colour.)~"},
        {"#fff #000", R"~("#000" follows the colour; give a single colour.)~"},
        {"fff 000", R"~("000" follows the colour; give a single colour.)~"},
        {"rgb(1 2 3) 40%", R"~("40%" follows the colour; give a single colour.)~"},
        {"red;;", R"~(";" follows the colour; give a single colour.)~"},
        {"red !important", R"~("!important" follows the colour; give a single colour.)~"},
        {"red; background: white; margin: 0",
         R"~("background: white; margi..." follows the colour; give a single colour.)~"},
        {"red /* a", commentUnclosed},
    });
}

TEST(CSSColorErrorsTest, Functions)
{
    expectErrors({
        {"cmyk(1 2 3)",
         R"~("cmyk" is not a supported colour function; use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() or light-dark().)~"},
        {"var(--accent)",
         R"~(The value of var() depends on the page that uses it; write the value itself.)~"},
        {"rgb (1 2 3)",
         R"~("rgb" must be directly followed by its parenthesis; write "rgb(255 128 0 / 50%)".)~"},
        {"hsl/**/(1 2 3)",
         R"~("hsl" must be directly followed by its parenthesis; write "hsl(30 100% 50% / 50%)".)~"},
        {"rgb(round(5) 2 3)",
         R"~("round" is not supported inside a colour; write the resulting number.)~"},
        {"rgb(1 2 3", R"~(rgb() is not closed; add a ")" after the values.)~"},
        {"rgb(1, 2,", R"~(rgb() is not closed; add a ")" after the values.)~"},
        {"rgb(1 2 3 /", R"~(rgb() is not closed; add a ")" after the values.)~"},
        {"rgb(1 2 3 / 1", R"~(rgb() is not closed; add a ")" after the values.)~"},
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
         R"~(Instead of the ")" of rgb() there is "4"; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1 2 3 / 4 5)",
         R"~(Instead of the ")" of rgb() there is "5"; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1 2 3 / 1 / 1)",
         R"~(Instead of the ")" of rgb() there is "/"; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1,2,3,4,5)",
         R"~(Instead of the ")" of rgb() there is ","; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1 2 3;)",
         R"~(Instead of the ")" of rgb() there is ";"; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1,,2)",
         R"~(The green of rgb() is missing before ","; insert a number or a percentage.)~"},
        {"rgb(,1,2)",
         R"~(The red of rgb() is missing before ","; insert a number or a percentage.)~"},
        {"oklch(50% 0.1 / 1)",
         R"~(The hue of oklch() is missing before "/"; insert an angle or a number.)~"},
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
         R"~(The values of rgb() must be separated either by commas or by spaces; write "rgb(255 128 0 / 50%)" or "rgb(255, 128, 0, 0.5)".)~"},
        {"hsl(1, 2% 3%)",
         R"~(The values of hsl() must be separated either by commas or by spaces; write "hsl(30 100% 50% / 50%)" or "hsl(30, 100%, 50%, 0.5)".)~"},
        {"rgb(1 2 3, 0.5)",
         R"~(The values of rgb() must be separated either by commas or by spaces; write "rgb(255 128 0 / 50%)" or "rgb(255, 128, 0, 0.5)".)~"},
        {"rgb(1, 2, 3 / 0.5)",
         R"~(With commas, the alpha of rgb() must also follow a comma; write "rgb(255, 128, 0, 0.5)".)~"},
        {"hwb(30, 0%, 0%)",
         R"~(hwb() does not take commas between its values; write "hwb(30 0% 0% / 50%)".)~"},
        {"lch(50 20, 30)",
         R"~(lch() does not take commas between its values; write "lch(67 85 60 / 50%)".)~"},
        {"oklab(0.5 0.1 0.1, 0.5)",
         R"~(The alpha of oklab() must follow a "/"; write "oklab(73% 0.1 0.15 / 50%)".)~"},
        {"rgb(none, 2, 3)",
         R"~("none" cannot be used with commas; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(1, 2, 3, none)",
         R"~("none" cannot be used with commas; write "rgb(255 128 0 / 50%)".)~"},
        {"rgb(10%, 20, 30)",
         R"~(With commas, the values of rgb() must be all numbers or all percentages; write "rgb(255, 128, 0, 0.5)".)~"},
        {"hsl(30, 100, 50%)",
         R"~(With commas, the saturation of hsl() must be a percentage; write "hsl(30, 100%, 50%, 0.5)".)~"},
        {"hsla(30, 100%, 50, 1)",
         R"~(With commas, the lightness of hsla() must be a percentage; write "hsl(30, 100%, 50%, 0.5)".)~"},
    });
}

TEST(CSSColorErrorsTest, KindsOfValues)
{
    expectErrors({
        {"rgb(red 2 3)", R"~(The red of rgb() must be a number or a percentage, not "red".)~"},
        {"rgb(1px 2 3)", R"~(The red of rgb() must be a number or a percentage, not "1px".)~"},
        {"rgb(1 2deg 3)", R"~(The green of rgb() must be a number or a percentage, not "2deg".)~"},
        {"rgb(1 2 #3)", R"~(The blue of rgb() must be a number or a percentage, not "#3".)~"},
        {"rgb(1. 2 3)", R"~(The green of rgb() must be a number or a percentage, not ".".)~"},
        {"rgb(1 % 3)", R"~(The green of rgb() must be a number or a percentage, not "%".)~"},
        {"rgb(1 2 3 / 1deg)",
         R"~(The alpha of rgb() must be a number or a percentage, not "1deg".)~"},
        {"hsl(10% 20% 30%)", R"~(The hue of hsl() must be an angle or a number, not "10%".)~"},
        {"lch(10% 20 x)", R"~(The hue of lch() must be an angle or a number, not "x".)~"},
        {"hsl(10px 20% 30%)", R"~("10px" is not an angle; use the unit deg, grad, rad or turn.)~"},
        {"color(xyz 1 y 3)", R"~(The Y of color() must be a number or a percentage, not "y".)~"},
        {"color(srgb 1 g 3)",
         R"~(The green of color() must be a number or a percentage, not "g".)~"},
        {"color(p3 1 2 3)",
         R"~("p3" is not a colour space of color(); write srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 or xyz-d65.)~"},
        {"color(1 2 3)",
         R"~(color() must begin with a colour space: srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50 or xyz-d65.)~"},
    });
}

}  // namespace
}  // namespace vantorel
