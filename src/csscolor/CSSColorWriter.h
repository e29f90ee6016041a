#pragma once

#include "host/HostColor.h"

#include <optional>
#include <string>

/// Colours as texts of CSS Color 4. An alpha is written when it is not opaque in 8 bits. Fractions
/// outside 0..1 count as the nearer end, and NaN as 0. A pattern has no text. No text depends on a
/// locale, and `readCSSColor` reads each one back as the same colour in 8 bits.
namespace vantorel {

/// "#ff8000" or "#ff800080".
[[nodiscard]] std::optional<std::u16string> hexText(const HostColor& color);

/// As browsers write sRGB colours (section 15.2): "rgb(255, 128, 0)" or "rgba(255, 128, 0, 0.5)".
[[nodiscard]] std::optional<std::u16string> rgbText(const HostColor& color);

/// "hsl(30.12 100% 50%)" or "hsl(30.12 100% 50% / 0.5)", with two decimals at most.
[[nodiscard]] std::optional<std::u16string> hslText(const HostColor& color);

/// "oklch(73.227% 0.18566 53.148)" or "oklch(... / 0.5)": five digits that count in each value, as
/// the examples of CSS Color 4 have. A grey has the hue 0.
[[nodiscard]] std::optional<std::u16string> oklchText(const HostColor& color);

}  // namespace vantorel
