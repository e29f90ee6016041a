#include "PickerPage.h"

namespace vantorel {
namespace {

/// The texts that the current colour is dragged and copied as.
class CopyTextTest : public PickerPage {
protected:
    CopyTextTest() { setColor(0.5); }

    void setColor(double alpha)
    {
        _panel.changeColor(HostColor::colorWithCalibratedRed(1, 128 / 255.0, 10 / 255.0, alpha));
    }
    [[nodiscard]] std::optional<std::u16string> copyText(CodeDragType type)
    {
        _picker.hexSettings().setCodeDragType(type);
        return _picker.copyText();
    }
    [[nodiscard]] std::optional<std::u16string> dragText(CodeDragType type)
    {
        _picker.hexSettings().setCodeDragType(type);
        return _picker.dragText();
    }
};

TEST_F(CopyTextTest, CopyingKeepsTheOpacityAndDraggingTheForm)
{
    EXPECT_EQ(dragText(CodeDragType::hexCode), u"#FF800A");
    EXPECT_EQ(copyText(CodeDragType::hexCode), u"#FF800A80");
    EXPECT_EQ(dragText(CodeDragType::rgbCSS), u"RGB(255, 128, 10);");
    EXPECT_EQ(copyText(CodeDragType::rgbCSS), u"RGB(255 128 10 / 0.5);");
    EXPECT_EQ(dragText(CodeDragType::color), std::nullopt);
    EXPECT_EQ(copyText(CodeDragType::color), std::nullopt);
    _picker.hexSettings().setEntryForm(EntryForm::lowercase);
    _picker.hexSettings().setUsePoundSign(false);
    EXPECT_EQ(copyText(CodeDragType::hexCode), u"ff800a80");
}

TEST_F(CopyTextTest, AnOpaqueColourIsCopiedAsItIsDragged)
{
    for (const double alpha : {1.0, 0.999}) {
        setColor(alpha);
        EXPECT_EQ(copyText(CodeDragType::hexCode), u"#FF800A");
        EXPECT_EQ(copyText(CodeDragType::rgbCSS), dragText(CodeDragType::rgbCSS));
    }
    setColor(0.99);
    EXPECT_EQ(copyText(CodeDragType::hexCode), u"#FF800AFC");
}

TEST_F(CopyTextTest, ASnippetWritesTheOpacityItself)
{
    _picker.hexSettings().setCodeSnippets(
        std::vector{QTXCodeSnippet(u"s", u"%d %d %d %.2f", u"rgbFixedAlphaFloat")});
    _picker.hexSettings().setCodeSnippetName(u"s");
    EXPECT_EQ(copyText(CodeDragType::codeSnippet), dragText(CodeDragType::codeSnippet));
    EXPECT_EQ(copyText(CodeDragType::codeSnippet), u"255 128 10 0.50");
    _panel.changeColor(std::nullopt);
    EXPECT_EQ(copyText(CodeDragType::codeSnippet), u"0 0 0 0.00") << "no colour has no opacity";
    EXPECT_EQ(copyText(CodeDragType::hexCode), u"#00000000");
}

TEST_F(CopyTextTest, AnEmptyTextIsNoText)
{
    _picker.hexSettings().setCodeSnippets(std::vector{QTXCodeSnippet(u"s", u"", u"rgbFloats")});
    _picker.hexSettings().setCodeSnippetName(u"s");
    EXPECT_EQ(copyText(CodeDragType::codeSnippet), std::nullopt);
    EXPECT_EQ(dragText(CodeDragType::codeSnippet), std::nullopt);
}

TEST_F(CopyTextTest, AllTextsAreOffered)
{
    _picker.hexSettings().setCodeSnippets(
        std::vector{QTXCodeSnippet(u"s", u"%.1f, %.1f", u"rgbaFloats")});
    const auto texts = _picker.colorTexts();
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].name, u"Hex Code");
    EXPECT_EQ(texts[0].text, u"#FF800A80");
    EXPECT_EQ(texts[1].name, u"RGB (CSS)");
    EXPECT_EQ(texts[1].text, u"RGB(255 128 10 / 0.5);");
    EXPECT_EQ(texts[2].name, u"s");
    EXPECT_EQ(texts[2].text, u"1.0, 0.5");
    EXPECT_TRUE(texts[0].isOwnWord && texts[1].isOwnWord);
    EXPECT_FALSE(texts[2].isOwnWord);
}

}  // namespace
}  // namespace vantorel
