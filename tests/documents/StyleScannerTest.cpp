#include "DocumentTexts.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

auto css(std::string_view text)
{
    return colorTexts(text, DocumentLanguage::css);
}

auto scss(std::string_view text)
{
    return colorTexts(text, DocumentLanguage::scss);
}

auto less(std::string_view text)
{
    return colorTexts(text, DocumentLanguage::less);
}

TEST(StyleScannerTest, EveryFormOfCSSIsFound)
{
    EXPECT_THAT(css("a{color:#ff8000;background:#FFF;fill:#f80c}"),
                ElementsAre("#ff8000", "#FFF = #ffffff", "#f80c = #ff8800cc"));
    EXPECT_THAT(css("a { color: red; background: ReD url(x.png) }"),
                ElementsAre("red = #ff0000", "ReD = #ff0000"));
    EXPECT_THAT(css("a { color: RGB(255 128 0 / 50%) }"),
                ElementsAre("RGB(255 128 0 / 50%) = #ff800080"));
    EXPECT_THAT(css("a { color: hsl(none 0% 100%); b: oklch(0 0 0); c: color(srgb 1 0 0) }"),
                ElementsAre("hsl(none 0% 100%) = #ffffff", "oklch(0 0 0) = #000000",
                            "color(srgb 1 0 0) = #ff0000"));
    EXPECT_THAT(css("a { color: rgb(calc(200 + 55) 0 0); b: transparent }"),
                ElementsAre("rgb(calc(200 + 55) 0 0) = #ff0000", "transparent = #00000000"));
}

TEST(StyleScannerTest, ColoursWithinColoursAreFoundToo)
{
    EXPECT_THAT(
        css("a { color: color-mix(in srgb, red, #00f) }"),
        ElementsAre("color-mix(in srgb, red, #00f) = #800080", "red = #ff0000", "#00f = #0000ff"));
    EXPECT_THAT(css("a { color: rgb(from rgb(1 2 3) b g r) }"),
                ElementsAre("rgb(from rgb(1 2 3) b g r) = #030201", "rgb(1 2 3) = #010203"));
    EXPECT_THAT(css("a { background: linear-gradient(to right, red 10%, rgba(0,0,0,.5)) }"),
                ElementsAre("red = #ff0000", "rgba(0,0,0,.5) = #00000080"));
    EXPECT_THAT(css("a { color: light-dark(white, black) }"),
                ElementsAre("white = #ffffff", "black = #000000"));
}

TEST(StyleScannerTest, SelectorsHaveNoColours)
{
    for (const char* text :
         {"#add { }", ".red { }", "a:hover #fed, a:not(#abc) { }", "red { }", "a[href='#fff'] {}",
          "a:hover red { top: 0 }", "a { &:hover #add { top: 0 } }", "tan > .red + #bad {}",
          "@media (color: red) {}", "@keyframes tan { from { top: 0 } }", "@layer red, tan;",
          "@extend .red;", "@import url(#add);", "@import 'a.css#fff';",
          "@namespace red '#fff';"}) {
        EXPECT_THAT(css(text), IsEmpty()) << text;
        EXPECT_THAT(scss(text), IsEmpty()) << text;
        EXPECT_THAT(less(text), IsEmpty()) << text;
    }
}

TEST(StyleScannerTest, WordsAddressesAndCommentsHaveNoColours)
{
    for (const char* text :
         {"a { width: calc(tan(1) * 2) }",
          "a { background: url(#add) }",
          "a { background: url( a.svg#fff ) }",
          "a { background: URL('a.svg#fff') }",
          "a { content: 'red #fff' }",
          "a { content: \"\\\"red\" }",
          "/* red #fff */",
          "a { /* color: red; */ }",
          "a { animation: tan 1s; -webkit-animation-name: tan }",
          "a { font-family: coral }",
          "a { grid-area: red }",
          "a { width: attr(tan) }",
          "a { color: #ff }",
          "a { color: #fffff }",
          "a { color: #fffffffff }",
          "a { top: 1red }",
          "a { color: redder; b: -red; c: red-x; d: #fffx }",
          "a { color: rgb(1 2) }",
          "a { filter: progid:DXImageTransform.Microsoft.gradient(startColorstr='#80000000') }",
          "a { color: currentcolor; b: Canvas; c: var(--x) }"}) {
        EXPECT_THAT(css(text), IsEmpty()) << text;
    }
}

TEST(StyleScannerTest, TextsThatAreBeingTypedHideLittle)
{
    EXPECT_THAT(css("a { color: rgb(1 2; b: red } c { d: blue }"),
                ElementsAre("red = #ff0000", "blue = #0000ff"));
    EXPECT_THAT(css("a { b: 'red\n; c: blue }"), ElementsAre("blue = #0000ff"));
    EXPECT_THAT(css("a { b: url(red\n; c: blue }"), ElementsAre("blue = #0000ff"));
    EXPECT_THAT(css("} ) ] a { b: red"), ElementsAre("red = #ff0000"));
    EXPECT_THAT(css("a { b: red /* c: blue"), ElementsAre("red = #ff0000"));
    EXPECT_THAT(css("a{b:\\"), IsEmpty());
    EXPECT_THAT(css("a{b:'\\"), IsEmpty());
    EXPECT_THAT(css("a{b:url(\\"), IsEmpty());
}

TEST(StyleScannerTest, NestedRulesAndRulesWithExpressionsAreRead)
{
    EXPECT_THAT(css("a { color: red; &:hover { color: blue } border: 1px solid green }"),
                ElementsAre("red = #ff0000", "blue = #0000ff", "green = #008000"));
    EXPECT_THAT(css("@supports (color: red) { a { color: #123456 } }"),
                ElementsAre("red = #ff0000", "#123456"));
    EXPECT_THAT(css("@media print { a { color: red } }"), ElementsAre("red = #ff0000"));
    EXPECT_THAT(scss("@include button(#fff, $hover: red); @include tan;"),
                ElementsAre("#fff = #ffffff", "red = #ff0000"));
    EXPECT_THAT(scss("@function f($c: red) { @return mix(#fff, $c); }"),
                ElementsAre("red = #ff0000", "#fff = #ffffff"));
    EXPECT_THAT(scss("@if $a == red { b { c: blue } }"),
                ElementsAre("red = #ff0000", "blue = #0000ff"));
    EXPECT_THAT(less(".m(#fff, red); #ns.m(blue); .red; .a:hover;"),
                ElementsAre("#fff = #ffffff", "red = #ff0000", "blue = #0000ff"));
}

TEST(StyleScannerTest, LineCommentsAreThoseOfSCSSAndLess)
{
    const auto* const text = "a { // b: red\n c: blue }";
    EXPECT_THAT(scss(text), ElementsAre("blue = #0000ff"));
    EXPECT_THAT(less(text), ElementsAre("blue = #0000ff"));
    EXPECT_THAT(css("a { b: url(http://x/#fff) red }"), ElementsAre("red = #ff0000"));
    EXPECT_THAT(scss("a { b: url(http://x/#fff) red }"), ElementsAre("red = #ff0000"));
}

TEST(StyleScannerTest, KeysOfMapsAndMembersOfModulesAreWords)
{
    EXPECT_THAT(scss("$m: (red: #ff0000, 'tan': blue); a { b: colors.red; c: colors.$tan }"),
                ElementsAre("#ff0000", "blue = #0000ff"));
    EXPECT_THAT(scss("a { b: %red; c: red.$tan }"), IsEmpty());
}

TEST(StyleScannerTest, InterpolationsAreNoBlocks)
{
    EXPECT_THAT(scss("$c: #123456; a { --b: #{$c}; #{$side}-color: red; c: blue }"),
                ElementsAre("#123456", "$c = #123456", "red = #ff0000", "blue = #0000ff"));
    EXPECT_THAT(scss("a#{&}:hover { b: red }"), ElementsAre("red = #ff0000"));
    EXPECT_THAT(less(".@{name} { @{side}-color: red }"), ElementsAre("red = #ff0000"));
}

TEST(StyleScannerTest, ColoursKnowTheirRuleAndTheirProperty)
{
    const std::string_view text = "a{color:red;background:blue}b{c{border:1px solid tan;}}";
    const DocumentColors found = findColors(text, DocumentLanguage::css);
    ASSERT_EQ(found.colors.size(), 3U);
    const auto propertyOf = [&](std::size_t i) {
        return found.declarations.at(found.colors[i].declaration).name.in(text);
    };
    EXPECT_EQ(propertyOf(0), "color");
    EXPECT_EQ(propertyOf(1), "background");
    EXPECT_EQ(propertyOf(2), "border");
    EXPECT_EQ(found.declarations.at(2).value.in(text), "1px solid tan");
    EXPECT_EQ(found.colors[0].block, found.colors[1].block);
    const DocumentBlock& inner = found.blocks.at(found.colors[2].block);
    EXPECT_EQ(inner.range.in(text), "border:1px solid tan;");
    EXPECT_EQ(found.blocks.at(inner.parent).range.in(text), "c{border:1px solid tan;}");
    EXPECT_EQ(found.blocks.at(inner.parent).parent, notInDocument);
}

TEST(StyleScannerTest, TheTextMayEndWithinAnInterpolation)
{
    for (const char* end : {"#{", "#{$c", "#{$c}", "@{", "@{c", "@{c}", "${", "${c", "${c}", "$",
                            "@", "var(", "var(--c", "var(--c)"}) {
        const std::string text = std::string("a { b: red; c: ") + end;
        for (const auto language :
             {DocumentLanguage::css, DocumentLanguage::scss, DocumentLanguage::less})
            EXPECT_THAT(colorTexts(text, language), ElementsAre("red = #ff0000")) << text;
        for (const char* value : {"<p style='c: red; b: ", "<style>a{c:red;b:"}) {
            const std::string markup = std::string(value) + end;
            EXPECT_THAT(colorTexts(markup, DocumentLanguage::html), ElementsAre("red = #ff0000"))
                << markup;
        }
    }
}

TEST(StyleScannerTest, HugeTextsOfBracketsAreScanned)
{
    constexpr std::size_t count = 1 << 17;
    for (const char* text : {"(", "{", "[", "#{", "rgb(", "a{b:", "var(", "/*", "a:'", "a{b:rgb(",
                             "color-mix(in srgb,", ")", "}", "\\", "@{", "${", "url("}) {
        std::string all;
        while (all.size() < count)
            all += text;
        for (const auto language :
             {DocumentLanguage::css, DocumentLanguage::scss, DocumentLanguage::less})
            EXPECT_THAT(colorTexts(all, language), IsEmpty()) << text;
    }
}

}  // namespace
}  // namespace vantorel
