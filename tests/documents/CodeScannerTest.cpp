#include "DocumentTexts.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

auto script(std::string_view text)
{
    return colorTexts(text, DocumentLanguage::script);
}

auto code(std::string_view text)
{
    return colorTexts(text, DocumentLanguage::cLikeCode);
}

TEST(CodeScannerTest, StringsWithColoursAreFound)
{
    EXPECT_THAT(script("const a = '#ff8000', b = \"rgba(0, 0, 0, .5)\", c = `#123456`;"),
                ElementsAre("#ff8000", "rgba(0, 0, 0, .5) = #00000080", "#123456"));
    EXPECT_THAT(script("border: '1px solid #ccc', grad: 'linear-gradient(#fff, hsl(0 0% 0%))'"),
                ElementsAre("#ccc = #cccccc", "#fff = #ffffff", "hsl(0 0% 0%) = #000000"));
    EXPECT_THAT(script("<p style={{ color: 'tan', backgroundColor: \"red\" }} fill=\"#fff\">"),
                ElementsAre("tan = #d2b48c", "red = #ff0000", "#fff = #ffffff"));
    EXPECT_THAT(script("`${a ? '#123456' : `#${b}`} #654321`"), ElementsAre("#123456", "#654321"));
}

TEST(CodeScannerTest, IdentifiersAddressesAndWordsAreNot)
{
    for (const char* text : {"document.querySelector('#abc')",
                             "$('#abc123')",
                             "el.href = '#fff'",
                             "{ to: '#abc' }",
                             "const a = '#add'",
                             "f('#face')",
                             "'page.html#fff'",
                             "'a/#abc/b'",
                             "'#fffg'",
                             "x = 'red'",
                             "f('tan')",
                             "title: 'red'",
                             "// '#fff'",
                             "/* '#fff' */",
                             "#fff",
                             "a.#abc",
                             "'#ff'",
                             "'#fffff'",
                             "'rgb(1 2)'",
                             "/['\"]#fff/",
                             "'#fff\n"}) {
        EXPECT_THAT(script(text), IsEmpty()) << text;
    }
    EXPECT_THAT(script("color: '#add'"), ElementsAre("#add = #aadddd"));
}

TEST(CodeScannerTest, TemplatesOfStylesAreStyleSheets)
{
    EXPECT_THAT(
        script("const B = styled.div`color: red; ${p => p.x && '}'} a: ${b}; c: tan;` + '#fff'"),
        ElementsAre("red = #ff0000", "tan = #d2b48c", "#fff = #ffffff"));
    EXPECT_THAT(script("css`a { color: var(--x, red) } // blue\n`; `red`"),
                ElementsAre("var(--x, red) = #ff0000", "red = #ff0000"));
}

TEST(CodeScannerTest, HexNumbersAreFound)
{
    EXPECT_THAT(code("int a = 0xFF8800, b = 0xffFF8800u;"),
                ElementsAre("0xFF8800 = #ff8800", "0xffFF8800 = #ff8800"));
    EXPECT_THAT(script("new Color(0x123456)"), ElementsAre("0x123456 = #123456"));
    for (const char* text : {"0xFF880", "0xFF88000", "0x80000000", "0xDEADBEEF", "a0xFF8800",
                             "0xFF8800g", "0xFF8800_1", "// 0xFF8800", "\"0xFF8800\""}) {
        EXPECT_THAT(code(text), IsEmpty()) << text;
    }
}

TEST(CodeScannerTest, LinesOfSnippetsAreFound)
{
    const SnippetReaders snippets({{u"Color", u"Color(0x%08x)", u"rgbaPackedInt"},
                                   {u"Three", u"Three(%d, %d, %d)", u"rgbFixed"}});
    const std::string_view text =
        "\u00e4\U0001F600 = Color(0x80ff8000); // Three(1, 2, 3)\n\"Three(1, 2, 3)\" Three(4, 5, "
        "6)";
    const auto colors = findColors(text, DocumentLanguage::cLikeCode, &snippets).colors;
    ASSERT_EQ(colors.size(), 2U);
    EXPECT_EQ(colors[0].range.in(text), "Color(0x80ff8000)");
    EXPECT_EQ(colors[0].form, WrittenForm::snippet);
    EXPECT_EQ(colors[0].snippet, 0);
    EXPECT_EQ(colors[1].range.in(text), "Three(4, 5, 6)");
    EXPECT_EQ(colors[1].snippet, 1);
}

TEST(CodeScannerTest, CommentsAreThoseOfTheLanguage)
{
    EXPECT_THAT(colorTexts("a = '#ff8000' # '#ffffff'\nb = \"\"\"x\n#123456\n\"\"\"",
                           DocumentLanguage::hashCode),
                ElementsAre("#ff8000", "#123456"));
    EXPECT_THAT(colorTexts("a = '#ff8000' -- '#ffffff'", DocumentLanguage::dashCode),
                ElementsAre("#ff8000"));
    EXPECT_THAT(colorTexts("(setq a \"#ff8000\") ; \"#ffffff\"", DocumentLanguage::lispCode),
                ElementsAre("#ff8000"));
    EXPECT_THAT(colorTexts("\"a\": \"#ff8000\" // \"#ffffff\"", DocumentLanguage::json),
                ElementsAre("#ff8000"));
    EXPECT_THAT(colorTexts("fn f<'a>(x: &'a str) { g(\"#ff8000\") }", DocumentLanguage::rustCode),
                ElementsAre("#ff8000"));
    EXPECT_THAT(colorTexts("x = \"#ff8000\" ' \"#ffffff\"", DocumentLanguage::basicCode),
                ElementsAre("#ff8000"));
}

TEST(CodeScannerTest, HugeTextsAreScanned)
{
    for (const char* text : {"`${", "'", "\"", "`", "/", "/*", "'rgb(", "0x", "{", "}", "css`",
                             "'rgb(rgb(rgb(rgb(rgb(", "\\", "'\\"}) {
        std::string all;
        while (all.size() < std::size_t{1} << 17)
            all += text;
        EXPECT_THAT(script(all), IsEmpty()) << text;
        EXPECT_THAT(code(all), IsEmpty()) << text;
    }
}

TEST(DocumentLanguageTest, TheIdentifierComesBeforeTheFileName)
{
    EXPECT_EQ(documentLanguage("scss", "a.css"), DocumentLanguage::scss);
    EXPECT_EQ(documentLanguage("", "file:///a/b.LESS"), DocumentLanguage::less);
    EXPECT_EQ(documentLanguage("unknown", "a.tsx"), DocumentLanguage::script);
    EXPECT_EQ(documentLanguage("typescriptreact", ""), DocumentLanguage::script);
    EXPECT_EQ(documentLanguage("", "a.css/b"), DocumentLanguage::plainText);
    EXPECT_EQ(documentLanguage("", ""), DocumentLanguage::plainText);
}

}  // namespace
}  // namespace vantorel
