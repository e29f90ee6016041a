#include "snippets/QTXCodeSnippet.h"

#include "snippets/DragString.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

QTXHexColorSpec orange()
{
    QTXHexColorSpec spec;
    spec.setHexRed(255, 128, 0);
    spec.setAlphaComp(1.0);
    return spec;
}

struct RenderedRow {
    const char16_t* name;
    const char16_t* text;
};

// clang-format off
const RenderedRow renderedRows[] = {
    {u"ObjC fraction", u"[NSColor colorWithCalibratedRed:1.00000 green:0.50196 blue:0.00000 alpha:1.00000]"},
    {u"ObjC decimal", u"[NSColor colorWithCalibratedRed:(255 / 255.0) green:(128 / 255.0) blue:(0 / 255.0) alpha:1.00000]"},
    {u"ObjC hex", u"[NSColor colorWithCalibratedRed:((CGFloat)0xff / (CGFloat)0xff) green:((CGFloat)0x80 / (CGFloat)0xff) blue:((CGFloat)0x00 / (CGFloat)0xff) alpha:1.00000]"},
    {u"Carbon hex", u"RGBColor myColor = {0xff, 0x80, 0x00};"},
    {u"Carbon decimal", u"RGBColor myColor = {255, 128, 0};"},
    {u"Java CGFloat", u"Color(1.00000, 0.50196, 0.00000)"},
    {u"Java CGFloat A", u"Color(1.00000, 0.50196, 0.00000, 1.00000)"},
    {u"Java NSInteger", u"Color(0xff8000)"},
    {u"Java NSInteger A", u"Color(0xffff8000)"},
    {u"Java NSInteger 3", u"Color(0xff, 0x80, 0x00)"},
    {u"Java NSInteger 4", u"Color(0xff, 0x80, 0x00, 0xff)"},
    {u"VBasic", u"RGB(255, 128, 0)"},
};
// clang-format on

TEST(QTXCodeSnippetTest, TheBuiltInSnippetsRenderInTheirOrder)
{
    const auto& snippets = QTXCodeSnippet::buildDefaultCodeSnippets();
    ASSERT_EQ(snippets.size(), std::size(renderedRows));
    for (std::size_t i = 0; i < snippets.size(); ++i) {
        EXPECT_EQ(snippets[i].nameSnippet(), renderedRows[i].name);
        EXPECT_EQ(snippets[i].codeSnippetWithColorSpec(orange()), renderedRows[i].text);
    }
    EXPECT_EQ(&QTXCodeSnippet::buildDefaultCodeSnippets(), &snippets);
}

TEST(QTXCodeSnippetTest, LoadingSetsOnlyTheKeysPresent)
{
    QTXCodeSnippet snippet(u"a", u"b", u"c");
    PropertyList onlyName(PropertyList::Dictionary{});
    onlyName.setValue(u"new", u"NameSnippet");
    onlyName.setValue(PropertyList::Array{}, u"FormatSnippet");  // wrong kind: missing
    snippet.loadPropertyListRepresentation(onlyName);
    EXPECT_EQ(snippet, QTXCodeSnippet(u"new", u"b", u"c"));
}

TEST(QTXCodeSnippetTest, SurvivesARoundTripThroughAPropertyList)
{
    for (const QTXCodeSnippet& snippet : QTXCodeSnippet::buildDefaultCodeSnippets()) {
        QTXCodeSnippet loaded;
        loaded.loadPropertyListRepresentation(snippet.propertyListRepresentation());
        EXPECT_EQ(loaded, snippet);
    }
}

TEST(QTXCodeSnippetTest, AnUnknownTypeIsRenderedAsQuestionMarks)
{
    EXPECT_EQ(QTXCodeSnippet(u"x", u"%n", u"RGBFixed").codeSnippetWithColorSpec(orange()), u"??");
    EXPECT_EQ(QTXCodeSnippet().codeSnippetWithColorSpec(orange()), u"??");
}

TEST(DragStringTest, FollowsTheTypeTheCaseAndThePoundSign)
{
    const auto& snippet = QTXCodeSnippet::buildDefaultCodeSnippets().back();
    const auto text = [&](CodeDragType type, EntryForm form, bool pound) {
        return dragStringWithDragType(type, orange(), form, pound, snippet);
    };
    EXPECT_EQ(text(CodeDragType::hexCode, EntryForm::uppercase, true), u"#FF8000");
    EXPECT_EQ(text(CodeDragType::hexCode, EntryForm::lowercase, false), u"ff8000");
    EXPECT_EQ(text(CodeDragType::rgbCSS, EntryForm::lowercase, true), u"rgb(255, 128, 0);");
    EXPECT_EQ(text(CodeDragType::codeSnippet, EntryForm::uppercase, true), u"RGB(255, 128, 0)");
    EXPECT_EQ(text(CodeDragType::color, EntryForm::uppercase, true), std::nullopt);
    EXPECT_EQ(text(static_cast<CodeDragType>(5), EntryForm::uppercase, true), std::nullopt);
}

}  // namespace
}  // namespace vantorel
