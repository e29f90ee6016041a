#include "snippets/DragString.h"

namespace vantorel {

std::optional<std::u16string> dragStringWithDragType(CodeDragType type,
                                                     const QTXHexColorSpec& colorSpec,
                                                     EntryForm entryForm, bool usePoundSign,
                                                     const QTXCodeSnippet& snippet)
{
    switch (type) {
        case CodeDragType::hexCode:
            return (usePoundSign ? u"#" : u"") +
                   colorSpec.fullStringHexColorSpecWithEntryForm(entryForm);
        case CodeDragType::rgbCSS:
            return colorSpec.rgbDecimalStringWithEntryForm(entryForm);
        case CodeDragType::codeSnippet:
            return snippet.codeSnippetWithColorSpec(colorSpec);
        case CodeDragType::color:
            break;
    }
    return std::nullopt;
}

}  // namespace vantorel
