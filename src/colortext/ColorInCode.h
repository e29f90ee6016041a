#pragma once

#include "csscolor/CSSColorReader.h"
#include "host/HostColor.h"
#include "result/Result.h"

#include <optional>
#include <string_view>

namespace vantorel {

/// Reads the colour in a line of source code, such as those that the built-in snippets write: three
/// or four numbers in brackets, or one number as in `0xff7f50` and `0xffff7f50` (alpha first).
/// Numbers with a decimal point and quotients are fractions, others are bytes.
///
/// Returns `std::nullopt` for every other line. Takes time in proportion to the line's length.
[[nodiscard]] std::optional<HostColor> colorInCode(std::u16string_view line);

/// Reads the colour in a text from elsewhere: a colour of CSS, a declaration with one, or a line of
/// code. The error is that of CSS.
[[nodiscard]] Result<CSSColor> colorInText(std::u16string_view text);

/// Returns the value of a declaration such as `color: #ff8000;`, without the ";", or the text
/// itself if it is not a declaration.
[[nodiscard]] std::u16string_view declaredValue(std::u16string_view text);

}  // namespace vantorel
