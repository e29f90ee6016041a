#pragma once

#include "host/HostColor.h"
#include "result/Result.h"

#include <string_view>

namespace vantorel {

/// How a colour was written.
enum class CSSColorForm {
    /// "#" and 3, 4, 6 or 8 digits.
    hex,
    /// 3 or 6 digits without "#", which CSS does not know.
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
    /// The text names a colour outside sRGB, and `color` is what CSS shows in its place: mapped by
    /// `mappedIntoSRGB`, or with its channels cut for hsl() and hwb(). Numbers that CSS itself cuts
    /// when it reads them, as in rgb(300 0 0), do not count.
    bool wasOutsideSRGB = false;
};

/// Reads a text that is one colour of CSS Color 4, in any of its forms and with its rules for
/// values out of range. Numbers of any size are taken; `none` counts as zero.
///
/// More than CSS takes: 3 or 6 hex digits without "#", one ";" at the end, and around it all a
/// byte-order mark, no-break spaces, and NULs at the end, with which some programs end a dropped
/// text. Less: a parenthesis or a comment must be closed, and what needs a page or a calculation
/// has no colour here (`currentcolor`, system colours, calc(), var(), relative colours).
///
/// Takes time in proportion to the text's length.
[[nodiscard]] Result<CSSColor> readCSSColor(std::u16string_view text);
/// The same from UTF-8, well formed or not.
[[nodiscard]] Result<CSSColor> readCSSColor(std::string_view utf8);

}  // namespace vantorel
