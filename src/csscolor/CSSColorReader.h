#pragma once

#include "csscolor/CSSColorValue.h"
#include "host/HostColor.h"
#include "result/Result.h"

#include <string_view>

namespace vantorel {

/// How a colour was written.
enum class CSSColorForm {
    /// "#" and 3, 4, 6 or 8 digits.
    hex,
    /// 3 or 6 digits without "#", which is not a form of CSS.
    bareHex,
    /// A named colour or `transparent`.
    named,
    /// Also rgba().
    rgb,
    /// Also hsla().
    hsl,
    hwb,
    lab,
    lch,
    oklab,
    oklch,
    color,
    /// color-mix().
    mix,
};

struct CSSColor {
    /// All four fractions are 0..1.
    HostColor color = HostColor::blackColor();
    CSSColorForm form = CSSColorForm::named;
    /// Whether the text denotes a colour outside sRGB. `color` is then what CSS shows instead: the
    /// result of `mappedIntoSRGB`, or clamped channels for hsl() and hwb(). Numbers that CSS clamps
    /// on reading, as in rgb(300 0 0), do not count.
    bool wasOutsideSRGB = false;
    /// The same colour in the space of the text, not mapped.
    CSSColorValue value = {};
};

/// Which of its colours light-dark() denotes.
enum class CSSTheme { unknown, light, dark };

/// Reads a colour in any form of CSS Color 5. Values out of range are treated as CSS prescribes.
/// Numbers can have any size, and can be calculated; `none` counts as zero. Functions and
/// parentheses can be nested 32 deep. The form of light-dark() is that of the colour that it
/// denotes.
///
/// Also accepts texts that CSS does not: 3 or 6 hex digits without "#", a ";" after the colour,
/// byte-order marks and no-break spaces around it, and NULs at the end, which some programs append
/// to a dropped text. Rejects some that CSS accepts: unclosed parentheses and comments, and colours
/// that depend on a page (`currentcolor`, system colours, var(), and light-dark() without a theme).
///
/// Takes linear time.
[[nodiscard]] Result<CSSColor> readCSSColor(std::u16string_view text,
                                            CSSTheme theme = CSSTheme::unknown);
/// Like the overload above, for UTF-8, which may be ill-formed.
[[nodiscard]] Result<CSSColor> readCSSColor(std::string_view utf8,
                                            CSSTheme theme = CSSTheme::unknown);

/// Whether a text begins with the name of a colour function and its parenthesis.
[[nodiscard]] bool startsCSSColorFunction(std::u16string_view text);

}  // namespace vantorel
