#pragma once

#include "text/ASCII.h"

#include <string_view>

/// Bytes of names and blanks in style sheets.
namespace vantorel {

[[nodiscard]] constexpr bool isStyleNameByte(char c)
{
    return isLetterOrDigit(c) || c == '-' || c == '_' || c == '\\' ||
           static_cast<unsigned char>(c) >= 0x80;
}

[[nodiscard]] constexpr bool isStyleBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

[[nodiscard]] constexpr bool equalsLowerCase(std::string_view text, std::string_view lowerCase)
{
    return equalIgnoringCase(text, lowerCase);
}

}  // namespace vantorel
