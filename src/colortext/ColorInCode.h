#pragma once

#include "csscolor/CSSColorReader.h"
#include "host/HostColor.h"
#include "result/Result.h"
#include "snippets/SnippetReaders.h"

#include <optional>
#include <string_view>

namespace vantorel {

/// Reads the colour in a line of source code that no snippet wrote: three or four numbers in
/// brackets, or one number as in `0xff7f50` and `0xffff7f50` (alpha first). Numbers with a decimal
/// point and quotients are fractions, others are bytes.
///
/// Returns `std::nullopt` for every other line. Takes time in proportion to the line's length.
[[nodiscard]] std::optional<HostColor> colorInCode(std::u16string_view line);

/// Returns a colour of sRGB as one of CSS.
[[nodiscard]] CSSColor cssColorOf(const HostColor& color);

/// Reads the colour in a line that a snippet wrote, or in a text with one or more such lines that
/// all have the same colour. A text that begins as a function of CSS must be a line as a whole.
[[nodiscard]] std::optional<HostColor> colorInSnippets(std::u16string_view text,
                                                       const SnippetReaders& snippets);

/// The readers of the built-in snippets.
[[nodiscard]] const SnippetReaders& builtInSnippetReaders();

/// Reads the colour in a text from elsewhere: a colour of CSS, a declaration with one, or a line of
/// code, of the snippets or of another form. The error is that of CSS.
[[nodiscard]] Result<CSSColor> colorInText(
    std::u16string_view text, const SnippetReaders& snippets = builtInSnippetReaders());

/// Returns the value of a declaration such as `color: #ff8000;`, without the ";", or the text
/// itself if it is not a declaration.
[[nodiscard]] std::u16string_view declaredValue(std::u16string_view text);

}  // namespace vantorel
