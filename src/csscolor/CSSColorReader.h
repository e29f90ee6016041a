#pragma once

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
};

struct CSSColor {
    /// All four fractions are 0..1.
    HostColor color = HostColor::blackColor();
    CSSColorForm form = CSSColorForm::named;
    /// Whether the text denotes a colour outside sRGB. `color` is then what CSS shows instead: the
    /// result of `mappedIntoSRGB`, or clamped channels for hsl() and hwb(). Numbers that CSS clamps
    /// on reading, as in rgb(300 0 0), do not count.
    bool wasOutsideSRGB = false;
};

/// Reads a colour in any form of CSS Color 4. Values out of range are treated as CSS prescribes.
/// Numbers can have any size; `none` counts as zero.
///
/// Also accepts texts that CSS does not: 3 or 6 hex digits without "#", a ";" after the colour,
/// byte-order marks and no-break spaces around it, and NULs at the end, which some programs append
/// to a dropped text. Rejects some that CSS accepts: unclosed parentheses and comments, and colours
/// that depend on a page or a calculation (`currentcolor`, system colours, calc(), var(), relative
/// colours).
///
/// Takes linear time.
[[nodiscard]] Result<CSSColor> readCSSColor(std::u16string_view text);
/// Like the overload above, for UTF-8, which may be ill-formed.
[[nodiscard]] Result<CSSColor> readCSSColor(std::string_view utf8);

}  // namespace vantorel
