#pragma once

#include "csscolor/CSSTokenizer.h"
#include "text/Trimming.h"

#include <string_view>

/// What clipboards and files add to a text before and after it.
namespace vantorel {

[[nodiscard]] inline bool isSurroundingBlank(char16_t c)
{
    constexpr char16_t noBreakSpace = 0x00A0;
    constexpr char16_t byteOrderMark = 0xFEFF;
    return isCSSWhiteSpace(c) || c == noBreakSpace || c == byteOrderMark;
}

/// The text without blanks at its ends. Some programs end a dropped text with a NUL, so NULs at its
/// end go as well.
[[nodiscard]] inline std::u16string_view withoutSurroundings(std::u16string_view text)
{
    const auto isBlankOrNUL = [](char16_t c) { return isSurroundingBlank(c) || c == u'\0'; };
    return withoutLeading(withoutTrailing(text, isBlankOrNUL), isSurroundingBlank);
}

}  // namespace vantorel
