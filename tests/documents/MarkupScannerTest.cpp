#include "DocumentTexts.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

auto html(std::string_view text)
{
    return colorTexts(text, DocumentLanguage::html);
}

auto vue(std::string_view text)
{
    return colorTexts(text, DocumentLanguage::vue);
}

TEST(MarkupScannerTest, StylesAndScriptsAreScanned)
{
    EXPECT_THAT(html("<p>red<STYLE>a{b:red}</Style>#fff<script>x='#123456'</script>"),
                ElementsAre("red = #ff0000", "#123456"));
    EXPECT_THAT(html("<style>a{b:#123456}"), ElementsAre("#123456"));
    EXPECT_THAT(html("<style/>a{b:red}"), IsEmpty());
}

TEST(MarkupScannerTest, AttributesWithColoursAreRead)
{
    EXPECT_THAT(html("<p style=\"color:red;background:#fff\">"),
                ElementsAre("red = #ff0000", "#fff = #ffffff"));
    EXPECT_THAT(html("<font color=red><body bgcolor='#123456' text=tan>"),
                ElementsAre("red = #ff0000", "#123456", "tan = #d2b48c"));
    EXPECT_THAT(html("<meta name=theme-color content=\"#123456\"><input value='#abc'>"),
                ElementsAre("#123456", "#abc = #aabbcc"));
    EXPECT_THAT(colorTexts("<path fill='red' stroke=\"rgb(1 2 3)\" stop-color='#123456'/>"
                           "<animate values='red;#00f' from='tan'/>",
                           DocumentLanguage::svg),
                ElementsAre("red = #ff0000", "rgb(1 2 3) = #010203", "#123456", "red = #ff0000",
                            "#00f = #0000ff", "tan = #d2b48c"));
}

TEST(MarkupScannerTest, OtherAttributesTextsAndCommentsAreNotRead)
{
    for (const char* text :
         {"<a href='#add' id=red class='red #fff' title=\"red\">", "<!-- <p style='color:red'> -->",
          "#fff red", "<use xlink:href='#abc'/>", "<?xml color='red'?>", "<% color='red' %>",
          "<p fill='url(#abc)'>", "<a value='#abc' content='#abc'>", "<!DOCTYPE color='red'>"}) {
        EXPECT_THAT(html(text), IsEmpty()) << text;
    }
}

TEST(MarkupScannerTest, ComponentsOfVueAreRead)
{
    EXPECT_THAT(vue("<template><p :style=\"{ color: '#123456' }\" :color=\"'red'\"></template>"
                    "<style lang=\"scss\">$x: red; a{b:$x}</style>"),
                ElementsAre("#123456", "red = #ff0000", "red = #ff0000", "$x = #ff0000"));
    EXPECT_THAT(vue("<style lang='less'>@x: red; a{b:@x}</style>"),
                ElementsAre("red = #ff0000", "@x = #ff0000"));
}

TEST(MarkupScannerTest, ComponentsOfSvelteAreRead)
{
    EXPECT_THAT(colorTexts("<p style:color=\"red\" color={dark ? '#123456' : '#fff'}>{#if a}",
                           DocumentLanguage::svelte),
                ElementsAre("red = #ff0000", "#123456", "#fff = #ffffff"));
}

TEST(MarkupScannerTest, ABrokenTagHidesOnlyItself)
{
    EXPECT_THAT(html("<p style='color:red' <p style='color:blue'>"),
                ElementsAre("red = #ff0000", "blue = #0000ff"));
    for (const char* text : {"<", "<p", "<p a", "<p a=", "<p a='", "<p a={", "<style", "<style>",
                             "<!--", "<?", "<p \0"}) {
        EXPECT_THAT(html(text), IsEmpty()) << text;
    }
}

TEST(MarkupScannerTest, HugeTextsOfTagsAreScanned)
{
    for (const char* text : {"<", "<p ", "<p a='", "<style>", "<!--", "<?", "<p {", "<p style='"}) {
        std::string all;
        while (all.size() < std::size_t{1} << 17)
            all += text;
        EXPECT_THAT(html(all), IsEmpty()) << text;
    }
}

}  // namespace
}  // namespace vantorel
