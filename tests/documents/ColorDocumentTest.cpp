#include "documents/ColorDocument.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

std::vector<std::pair<TextRange, HostColor>> colorsOf(const ColorDocument& document)
{
    std::vector<std::pair<TextRange, HostColor>> colors;
    document.forEachColor([&](const DocumentColor& color, TextRange range) {
        colors.emplace_back(range, color.color);
    });
    return colors;
}

/// A style sheet with this many rules, variables among them.
std::string styleSheet(int rules)
{
    std::string text = ":root { --x: #123456; }\n$y: tan;\n";
    for (int i = 0; i < rules; ++i) {
        text += ".rule" + std::to_string(i) + " { color: rgb(" + std::to_string(i % 256) +
                " 2 3); background: var(--x); border: 1px solid $y }\n";
    }
    return text;
}

/// The document must be as if it had just been opened.
void expectAsNew(const ColorDocument& document)
{
    const ColorDocument again(document.text(), document.language());
    ASSERT_EQ(colorsOf(document), colorsOf(again)) << document.text();
    const DocumentColors found = findColors(document.text(), document.language());
    ASSERT_EQ(found.colors.size(), colorsOf(document).size());
}

TEST(ColorDocumentTest, AnEditScansOnlyItsSurroundings)
{
    ColorDocument document(styleSheet(3000), DocumentLanguage::scss);
    const std::size_t place = document.text().find("rgb(", document.text().size() / 2);
    document.replace({place, place + 3}, "RGB");
    EXPECT_LT(document.scannedLength(), 20000U);
    EXPECT_GT(document.scannedLength(), 0U);
    expectAsNew(document);
}

TEST(ColorDocumentTest, AnEditThatOpensABlockScansTheRest)
{
    ColorDocument document(styleSheet(1000), DocumentLanguage::scss);
    const std::size_t place = document.text().find(".rule500");
    document.replace({place, place}, "@media print {");
    expectAsNew(document);
    document.replace({place, place + 14}, "/*");
    expectAsNew(document);
    document.replace({place, place + 2}, "");
    expectAsNew(document);
}

TEST(ColorDocumentTest, AChangedVariableChangesItsUses)
{
    ColorDocument document(styleSheet(1000), DocumentLanguage::scss);
    const std::size_t place = document.text().find("#123456");
    document.replace({place, place + 7}, "#654321");
    expectAsNew(document);
    document.replace({0, 23}, "");
    expectAsNew(document);
}

TEST(ColorDocumentTest, TextsCanBeEmptied)
{
    ColorDocument document("", DocumentLanguage::css);
    expectAsNew(document);
    document.replace({0, 0}, styleSheet(300));
    expectAsNew(document);
    document.replace({0, document.text().size()}, "");
    expectAsNew(document);
}

TEST(ColorDocumentTest, RandomEditsGiveWhatANewDocumentGives)
{
    std::mt19937 random(1);  // NOLINT(bugprone-random-generator-seed): the same each time.
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    const std::array<std::string_view, 24> pieces{"{",
                                                  "}",
                                                  ";",
                                                  "/*",
                                                  "*/",
                                                  "\n",
                                                  "'",
                                                  "\"",
                                                  "#fff",
                                                  "red",
                                                  "$x: ",
                                                  "$x",
                                                  "var(--x)",
                                                  "--x:",
                                                  "a:",
                                                  "rgb(1 2 3)",
                                                  "<style>",
                                                  "</style>",
                                                  "<p style='color:red'>",
                                                  "`",
                                                  "${",
                                                  "// ",
                                                  "@media x {",
                                                  "0x123456"};
    for (const auto language :
         {DocumentLanguage::css, DocumentLanguage::scss, DocumentLanguage::less,
          DocumentLanguage::html, DocumentLanguage::script, DocumentLanguage::hashCode}) {
        std::string text;
        for (int i = 0; i < 6000; ++i)
            text += std::string(pieces[below(pieces.size())]) + (i % 8 == 0 ? ";}\n" : " ");
        ColorDocument document(text, language);
        for (int i = 0; i < 100; ++i) {
            const std::size_t begin = below(document.text().size() + 1);
            const std::size_t end = std::min(begin + below(40), document.text().size());
            document.replace({begin, end}, pieces[below(pieces.size())]);
            if (i % 10 == 0) {
                ASSERT_NO_FATAL_FAILURE(expectAsNew(document));
            }
        }
    }
}

}  // namespace
}  // namespace vantorel
