#include "csscolor/CSSColorReader.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vantorel {
namespace {

/// The red of an rgb() whose red is a calculation, 0..255; -1 if it is refused.
double redOf(const std::string& calculation)
{
    const Result<CSSColor> reading = readCSSColor("rgb(" + calculation + " 0 0)");
    return reading ? reading->value.components[0] * 255 : -1;
}

std::string refusalOf(const std::string& text)
{
    const Result<CSSColor> reading = readCSSColor(text);
    return reading ? "read" : english(reading.error());
}

TEST(CSSCalculationTest, OperatorsAndBrackets)
{
    EXPECT_DOUBLE_EQ(redOf("calc(1 + 2 * 3)"), 7);
    EXPECT_DOUBLE_EQ(redOf("calc((1 + 2) * 3)"), 9);
    EXPECT_DOUBLE_EQ(redOf("calc(20 - 10 - 5)"), 5);
    EXPECT_DOUBLE_EQ(redOf("calc(100/5/4)"), 5);
    EXPECT_DOUBLE_EQ(redOf("calc(2*(3 + calc(4)))"), 14);
    EXPECT_DOUBLE_EQ(redOf("CALC( 1/**/ + /**/2 )"), 3);
    EXPECT_DOUBLE_EQ(redOf("calc(1 - -2)"), 3);
    EXPECT_DOUBLE_EQ(redOf("min(7, 3, 5)"), 3);
    EXPECT_DOUBLE_EQ(redOf("max(7, 3 + 6, 5)"), 9);
    EXPECT_DOUBLE_EQ(redOf("clamp(10, 5, 20)"), 10);
    EXPECT_DOUBLE_EQ(redOf("clamp(10, 25, 20)"), 20);
    EXPECT_DOUBLE_EQ(redOf("clamp(10, 15, 20)"), 15);
    EXPECT_DOUBLE_EQ(redOf("clamp(30, 15, 20)"), 30) << "the lower limit wins";
}

TEST(CSSCalculationTest, NumbersOfAnySizeAreRead)
{
    EXPECT_EQ(redOf("calc(1e40 / 1e38)"), redOf("calc(3.4028234663852886e38 / 1e38)"));
    EXPECT_DOUBLE_EQ(redOf("calc(3e38 / 1e38)"), 3);
    EXPECT_EQ(redOf("calc(-1e99999999999999999999 / -1e38)"), redOf("calc(1e40 / 1e38)"));
    EXPECT_DOUBLE_EQ(redOf("calc(100" + std::string(100, '0') + "e-101)"), 10);
    EXPECT_DOUBLE_EQ(redOf("calc(0." + std::string(400, '0') + "1e402)"), 10);
    EXPECT_DOUBLE_EQ(redOf("calc(1" + std::string(50, '3') + "e-49)"), 13 + 1.0 / 3);
    // Halfway between two doubles, the next digit decides, up to the 40th digit.
    const auto afterHalfway = [](std::size_t zeros) {
        const std::string number = "9007199254740993." + std::string(zeros, '0') + "1";
        return redOf("calc(" + number + " - 9007199254740992)");
    };
    EXPECT_EQ(afterHalfway(23), 2);
    EXPECT_EQ(afterHalfway(24), 0);
    // Numbers that are closer to 0 count as 0.
    const std::string factor = " * 1e38 * 1e38 * 1e38 * 1e38 * 1e38 * 1e38 * 1e38 * 1e37)";
    EXPECT_NEAR(redOf("calc(1e-301" + factor), 100, 1e-9);
    EXPECT_EQ(redOf("calc(9e-302" + factor), 0);
    EXPECT_EQ(redOf("calc(1e-99999999999999999999" + factor), 0);
}

TEST(CSSCalculationTest, PercentagesAndAngles)
{
    EXPECT_DOUBLE_EQ(redOf("calc(20% + 20%)"), 102);
    EXPECT_DOUBLE_EQ(redOf("calc(2 * 20%)"), 102);
    EXPECT_DOUBLE_EQ(redOf("calc(20% * 2)"), 102);
    EXPECT_EQ(readCSSColor("hsl(calc(0.25turn + 30deg) 100% 50%)")->value.components[0], 120);
    EXPECT_EQ(readCSSColor("hsl(calc(1.5turn / 2) 100% 50%)")->value.components[0], 270)
        << "the turns are dropped at the end";
    EXPECT_EQ(readCSSColor("rgb(calc(50%), calc(50%), calc(0%))")->value.components[1], 0.5);
    EXPECT_EQ(readCSSColor("rgb(0 0 0 / calc(1 / 4))")->value.alpha, 0.25);
}

TEST(CSSCalculationTest, ConstantsAndWhatIsNoNumber)
{
    EXPECT_NEAR(redOf("calc(pi)"), 3.14159265, 1e-8);
    EXPECT_NEAR(redOf("calc(e)"), 2.71828183, 1e-8);
    EXPECT_EQ(redOf("calc(infinity)"), 255);
    EXPECT_EQ(redOf("calc(1 / 0)"), 255);
    EXPECT_EQ(redOf("calc(-infinity)"), 0);
    EXPECT_EQ(redOf("calc(NaN)"), 0);
    EXPECT_EQ(redOf("calc(0 / 0)"), 0);
    EXPECT_EQ(redOf("max(NaN, 5)"), 0);
    EXPECT_EQ(redOf("min(5, NaN)"), 0);
    EXPECT_EQ(redOf("clamp(1, NaN, 5)"), 0);
    EXPECT_EQ(readCSSColor("hsl(calc(infinity) 100% 50%)")->value.components[0], 0);
}

TEST(CSSCalculationTest, WrongCalculationsAreExplained)
{
    const std::vector<std::pair<const char*, const char*>> rows{
        {R"~(rgb(calc(1 + 2%) 0 0))~",
         R"~(A calculation cannot mix numbers, percentages and angles; write all values in one of them)~"},
        {R"~(rgb(max(1, 2%) 0 0))~",
         R"~(A calculation cannot mix numbers, percentages and angles; write all values in one of them)~"},
        {R"~(rgb(calc(1% * 2%) 0 0))~",
         R"~(A calculation can multiply only by a number; write "calc(50% * 2)")~"},
        {R"~(rgb(calc(1 / 2%) 0 0))~",
         R"~(A calculation can divide only by a number; write "calc(50% / 2)")~"},
        {R"~(rgb(calc(1+ 2) 0 0))~",
         R"~(A calculation needs spaces on both sides of "+"; write "calc(1 + 2)")~"},
        {R"~(rgb(calc(1 -/**/(2)) 0 0))~",
         R"~(A calculation needs spaces on both sides of "-"; write "calc(1 + 2)")~"},
        {R"~(rgb(calc(1 + ) 0 0))~",
         R"~(A calculation needs a value before ")"; write "calc(1 + 2)")~"},
        {R"~(rgb(calc(1 +2) 0 0))~",
         R"~(Instead of the ")" of calc() there is "+2"; write "calc(1 + 2)")~"},
        {R"~(rgb(calc(r) 0 0))~",
         R"~("r" does not stand for a number in a calculation; write the number)~"},
        {R"~(rgb(calc(1px) 0 0))~",
         R"~("1px" is not an angle; use the unit deg, grad, rad or turn)~"},
        {R"~(rgb(calc(1deg) 0 0))~",
         R"~(The red of rgb() must be a number or a percentage, not the result of this calc())~"},
        {R"~(hsl(calc(1%) 0 0))~",
         R"~(The hue of hsl() must be an angle or a number, not the result of this calc())~"},
        {R"~(rgb(clamp(1, 2) 0 0))~",
         R"~(clamp() needs 3 values and has 2; write "clamp(0, 5, 10)")~"},
        {R"~(rgb(calc(1, 2) 0 0))~",
         R"~(Instead of the ")" of calc() there is ","; write "calc(1 + 2)")~"},
        {R"~(rgb(calc(1 + (2)~", R"~(The calculation is not closed; add a ")" after the values)~"},
        {R"~(rgb(calc(1 + /* 2)~",
         R"~(The comment that starts with "/*" is not closed; close it with "*/")~"},
        {R"~(rgb(calc(sin(1)) 0 0))~",
         R"~("sin" is not supported inside a colour; write the resulting number)~"},
        {R"~(rgb(calc(1 + var(--red)) 0 0))~",
         R"~(The value of var() depends on the page that uses it; write the value itself)~"},
        {R"~(rgb(1 2 3 / env(x)))~",
         R"~(The value of env() depends on the page that uses it; write the value itself)~"},
    };
    for (const auto& [text, refusal] : rows)
        EXPECT_EQ(refusalOf(text), refusal) << text;
}

}  // namespace
}  // namespace vantorel
