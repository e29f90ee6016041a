#pragma once

#include "csscolor/CSSTokenizer.h"
#include "text/Trimming.h"

#include <string_view>

/// Characters that clipboards and files add before and after a text.
namespace vantorel {

[[nodiscard]] inline bool isSurroundingBlank(char16_t c)
{
    constexpr char16_t noBreakSpace = 0x00A0;
    constexpr char16_t byteOrderMark = 0xFEFF;
    return isCSSWhiteSpace(c) || c == noBreakSpace || c == byteOrderMark;
}

/// Removes leading and trailing blanks. Trailing NULs are removed too, because some programs append
/// one to a dropped text.
[[nodiscard]] inline std::u16string_view withoutSurroundings(std::u16string_view text)
{
    const auto isBlankOrNUL = [](char16_t c) { return isSurroundingBlank(c) || c == u'\0'; };
    return withoutLeading(withoutTrailing(text, isBlankOrNUL), isSurroundingBlank);
}

}  // namespace vantorel
