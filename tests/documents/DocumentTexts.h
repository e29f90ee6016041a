#pragma once

#include "csscolor/CSSColorWriter.h"
#include "documents/DocumentColors.h"
#include "text/Unicode.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

/// Each colour of a document as "TEXT" or, if that is no hex code of its own, as "TEXT = #rrggbb".
inline std::vector<std::string> colorTexts(std::string_view text, DocumentLanguage language)
{
    std::vector<std::string> texts;
    for (const DocumentColor& color : findColors(text, language).colors) {
        std::string written(color.range.in(text));
        const std::string hex = utf8FromUtf16(hexText(color.color).value_or(u"?"));
        if (written != hex) written.append(" = ").append(hex);
        texts.push_back(std::move(written));
    }
    return texts;
}

}  // namespace vantorel
