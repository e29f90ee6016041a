#include "color/ChannelConversion.h"
#include "csscolor/CSSColorWriter.h"
#include "picker/QTXHexColorPicker.h"
#include "snippets/DragString.h"

/// The current colour as text, for drags and for the clipboard.
namespace vantorel {

QTXHexColorSpec QTXHexColorPicker::colorSpecWithPanelAlpha() const
{
    QTXHexColorSpec spec = _hexColorSpec;
    const auto panelColor = colorPanel().color();
    spec.setAlphaComp(panelColor ? panelColor->alphaComponent() : 0.0);
    return spec;
}

std::optional<std::u16string> QTXHexColorPicker::dragString() const
{
    return dragStringWithDragType(_hexSettings.codeDragType());
}

std::optional<std::u16string> QTXHexColorPicker::dragStringWithDragType(CodeDragType type) const
{
    return vantorel::dragStringWithDragType(type, colorSpecWithPanelAlpha(),
                                            _hexSettings.entryForm(), _hexSettings.usePoundSign(),
                                            _hexSettings.codeSnippet());
}

std::optional<std::u16string> QTXHexColorPicker::dragText() const
{
    auto text = dragString();
    return text && !text->empty() ? text : std::nullopt;
}

std::optional<std::u16string> QTXHexColorPicker::copyTextWithDragType(CodeDragType type) const
{
    auto text = dragStringWithDragType(type);
    const double alpha = colorSpecWithPanelAlpha().alphaComp();
    constexpr std::uint8_t opaque = 255;
    if (!text || nearestByte(alpha) == opaque) return text;
    if (type == CodeDragType::hexCode)
        appendHexByte(*text, nearestByte(alpha), hexCaseOf(_hexSettings.entryForm()));
    if (type == CodeDragType::rgbCSS) text = rgbTextWithAlpha(*std::move(text), alpha);
    return text;
}

std::optional<std::u16string> QTXHexColorPicker::copyText() const
{
    auto text = copyTextWithDragType(_hexSettings.codeDragType());
    return text && !text->empty() ? text : std::nullopt;
}

std::vector<HostColorText> QTXHexColorPicker::colorTexts() const
{
    std::vector<HostColorText> texts;
    for (const CodeDragType type : {CodeDragType::hexCode, CodeDragType::rgbCSS}) {
        texts.push_back({QTXHexSettings::nameCodeDragType(type).value_or(u""),
                         copyTextWithDragType(type).value_or(u""), true});
    }
    const QTXHexColorSpec spec = colorSpecWithPanelAlpha();
    for (const auto& snippet : _hexSettings.codeSnippets()) {
        texts.push_back(
            {snippet.nameSnippet().value_or(u""), snippet.codeSnippetWithColorSpec(spec)});
    }
    return texts;
}

}  // namespace vantorel
