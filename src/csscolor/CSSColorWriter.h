#pragma once

#include "color/HexForm.h"
#include "csscolor/CSSColorValue.h"
#include "host/HostColor.h"

#include <optional>
#include <string>

/// Colours as texts of CSS Color 4. The alpha is written unless it is opaque in 8 bits. Components
/// outside 0..1 are clamped, and NaN counts as 0. The functions return `std::nullopt` for a
/// pattern. The texts do not depend on the locale, and `readCSSColor` reads each of them back as
/// the same colour in 8 bits.
namespace vantorel {

/// Returns "#ff8000" or "#ff800080".
[[nodiscard]] std::optional<std::u16string> hexText(const HostColor& color);
/// The same in the form that the user wants, which is not always CSS: "FF8000" or "ff800080".
[[nodiscard]] std::optional<std::u16string> hexText(const HostColor& color, const HexForm& form);

/// Returns "rgb(255, 128, 0)" or "rgba(255, 128, 0, 0.5)", as browsers do (section 15.2).
[[nodiscard]] std::optional<std::u16string> rgbText(const HostColor& color);

/// Adds an alpha to the text of an opaque colour, such as "rgb(255, 128, 0)", and writes it in the
/// form with spaces: "rgb(255 128 0 / 0.5)". Capitals and what follows the ")" are kept. An alpha
/// that is opaque in 8 bits leaves the text as it is.
[[nodiscard]] std::u16string rgbTextWithAlpha(std::u16string opaqueText, double alpha);

/// Returns "hsl(30.12 100% 50%)" or "hsl(30.12 100% 50% / 0.5)", with at most two decimals.
[[nodiscard]] std::optional<std::u16string> hslText(const HostColor& color);

/// Returns "oklch(73.227% 0.18566 53.148)" or "oklch(... / 0.5)". Each value has five significant
/// digits, as in the examples of CSS Color 4. The hue of a grey is 0.
[[nodiscard]] std::optional<std::u16string> oklchText(const HostColor& color);

/// Returns the colour in a space, in the syntax of CSS Color 4: "hwb(30.12 0% 0%)",
/// "lab(67.053 43.148 74.345)", "color(display-p3 0.9496 0.54191 0.19661)". It is neither clamped
/// nor mapped, so that only the spaces of sRGB need a colour within them. `none` is written only
/// for a colour that was written with it; the hue of a grey is 0.
[[nodiscard]] std::u16string cssTextIn(ColorSpace space, const CSSColorValue& color);

}  // namespace vantorel
