#pragma once

#include "csscolor/CSSColorReader.h"
#include "host/HostColor.h"

#include <optional>
#include <string_view>

/// Colours of CSS at known places of a document. The texts are UTF-8 without surrounding blanks.
namespace vantorel {

struct ColorLiteral {
    HostColor color = HostColor::blackColor();
    CSSColorForm form = CSSColorForm::named;
};

/// Reads 3, 4, 6 or 8 hex digits, which in the document follow a "#".
[[nodiscard]] std::optional<ColorLiteral> hexLiteral(std::string_view digits);

/// Reads a named colour or `transparent`. The name may contain escapes.
[[nodiscard]] std::optional<ColorLiteral> nameLiteral(std::string_view name);

/// Reads a colour of any form except a hex code without "#".
[[nodiscard]] std::optional<ColorLiteral> colorLiteral(std::string_view text);

/// Whether a function of this name, in any letter case, can be a colour.
[[nodiscard]] bool isColorFunctionName(std::string_view name);

/// Longer texts are not read as a colour, so that nested functions take linear time.
inline constexpr std::size_t longestColorLiteral = 4096;

}  // namespace vantorel
