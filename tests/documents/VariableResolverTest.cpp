#include "DocumentTexts.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// The colours that use variables.
std::vector<std::string> uses(std::string_view text, DocumentLanguage language)
{
    std::vector<std::string> texts;
    const auto all = colorTexts(text, language);
    const auto found = findColors(text, language).colors;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i].usesVariables) texts.push_back(all[i]);
    }
    return texts;
}

auto usesInCSS(std::string_view text)
{
    return uses(text, DocumentLanguage::css);
}

auto usesInSCSS(std::string_view text)
{
    return uses(text, DocumentLanguage::scss);
}

auto usesInLess(std::string_view text)
{
    return uses(text, DocumentLanguage::less);
}

TEST(VariableResolverTest, CustomPropertiesHoldColours)
{
    EXPECT_THAT(usesInCSS(":root{--x:#123456} a{color:var(--x); b: VAR( --x )}"),
                ElementsAre("var(--x) = #123456", "VAR( --x ) = #123456"));
    EXPECT_THAT(usesInCSS("a{color:var(--x)} :root{--x: rgb(1 2 3) !important}"),
                ElementsAre("var(--x) = #010203"));
    EXPECT_THAT(usesInCSS(":root{--x:1px} a{b:var(--x)}"), IsEmpty());
    EXPECT_THAT(usesInCSS(":root{--x:add; --y:123} a{b:var(--x); c:var(--y)}"), IsEmpty());
    EXPECT_THAT(usesInCSS(":root{--X:red} a{b:var(--x)}"), IsEmpty());
}

TEST(VariableResolverTest, TheRuleItselfComesBeforeThePage)
{
    const auto* const text =
        ":root{--x:#111111} @media (dark) {:root{--x:#222222}} a{--x:#333333; b:var(--x)} "
        "c{b:var(--x)} d{--x:#444444; e{b:var(--x)}}";
    EXPECT_THAT(usesInCSS(text),
                ElementsAre("var(--x) = #333333", "var(--x) = #111111", "var(--x) = #444444"));
}

TEST(VariableResolverTest, AFallbackCountsWithoutADefinition)
{
    EXPECT_THAT(usesInCSS("a{color:var(--x, #123456)}"),
                ElementsAre("var(--x, #123456) = #123456"));
    EXPECT_THAT(usesInCSS("a{--y:red; color:var(--x, var(--y))}"),
                Contains("var(--x, var(--y)) = #ff0000"));
    EXPECT_THAT(usesInCSS("a{--x:blue; color:var(--x, red)}"),
                ElementsAre("var(--x, red) = #0000ff"));
    EXPECT_THAT(usesInCSS("a{--x:var(--x); color:var(--x, #123456)}"),
                ElementsAre("var(--x, #123456) = #123456"));
}

TEST(VariableResolverTest, DefinitionsInCirclesHoldNoColour)
{
    EXPECT_THAT(usesInCSS("a{--x:var(--y);--y:var(--x);b:var(--x)}"), IsEmpty());
    EXPECT_THAT(usesInSCSS("$x: $y; $y: $x; a{b:$x}"), IsEmpty());
    EXPECT_THAT(usesInLess("@x: @y; @y: @x; a{b:@x}"), IsEmpty());
}

TEST(VariableResolverTest, DefinitionsThatMultiplyEachOtherEnd)
{
    std::string text = "a{--x0: ;";
    for (int i = 1; i < 64; ++i) {
        const std::string inner = "var(--x" + std::to_string(i - 1) + ")";
        text.append("--x")
            .append(std::to_string(i))
            .append(":")
            .append(inner)
            .append(inner)
            .append(";");
    }
    EXPECT_THAT(usesInCSS(text + "b:var(--x63)}"), IsEmpty());
}

TEST(VariableResolverTest, FunctionsUseVariables)
{
    EXPECT_THAT(usesInCSS("a{--c: 255, 128, 0; b: rgba(var(--c), .5)}"),
                ElementsAre("rgba(var(--c), .5) = #ff800080"));
    EXPECT_THAT(usesInCSS("a{--c: #ff0000; b: rgb(from var(--c) b g r)}"),
                ElementsAre("rgb(from var(--c) b g r) = #0000ff", "var(--c) = #ff0000"));
    EXPECT_THAT(usesInCSS("a{--h: 120; b: hsl(var(--h) 100% 50%)}"),
                ElementsAre("hsl(var(--h) 100% 50%) = #00ff00"));
    EXPECT_THAT(usesInSCSS("$c: red; a{b: color-mix(in srgb, $c, blue)}"),
                ElementsAre("color-mix(in srgb, $c, blue) = #800080", "$c = #ff0000"));
}

TEST(VariableResolverTest, VariablesOfSCSSHoldWhatPrecedesThem)
{
    EXPECT_THAT(usesInSCSS("$x: #111111; a{b:$x} $x: #222222; c{d:$x}"),
                ElementsAre("$x = #111111", "$x = #222222"));
    EXPECT_THAT(usesInSCSS("a{$x: #111111; b:$x; c{d:$x}} e{f:$x}"),
                ElementsAre("$x = #111111", "$x = #111111"));
    EXPECT_THAT(usesInSCSS("$x: #111111; $x: #222222 !default; $y: $x !default; a{b:$y}"),
                ElementsAre("$x = #111111", "$y = #111111"));
    EXPECT_THAT(usesInSCSS("@mixin m { b: $x } $x: #111111;"), ElementsAre("$x = #111111"));
    EXPECT_THAT(usesInSCSS("$x: #111111; @include m($x: red, $y: $x); a{b: other.$x}"),
                ElementsAre("$x = #111111"));
}

TEST(VariableResolverTest, VariablesOfLessHoldTheLastDefinition)
{
    EXPECT_THAT(usesInLess("@x: #111111; a{b:@x} @x: #222222;"), ElementsAre("@x = #222222"));
    EXPECT_THAT(usesInLess("@x: #111111; a{b:@x; @x: #222222;} c{d:@x}"),
                ElementsAre("@x = #222222", "@x = #111111"));
}

}  // namespace
}  // namespace vantorel
