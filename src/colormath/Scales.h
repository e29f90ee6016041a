#pragma once

#include "csscolor/CSSColorValue.h"

#include <array>
#include <cstddef>
#include <vector>

/// Series of colours made from one. All keep its alpha.
namespace vantorel {

/// The names of the steps of a scale, from light to dark.
inline constexpr std::array scaleSteps{50, 100, 200, 300, 400, 500, 600, 700, 800, 900, 950};

struct ColorScale {
    std::array<CSSColorValue, scaleSteps.size()> colors;
    /// The place of the colour that the scale was made from, which is one of its colours unchanged.
    std::size_t ownPlace = 0;
};

/// Returns the scale of a colour: from nearly white to nearly black in the hue of the colour, in
/// equal steps of the lightness in OkLCh before and after the colour. The chroma falls towards both
/// ends. The colour takes the place of the step that is closest to it in lightness. The other
/// colours may be outside sRGB.
[[nodiscard]] ColorScale colorScale(const CSSColorValue& color);

// Each returns `count` colours, beginning with the colour, in equal steps of Oklab to an end that
// is not one of them.

/// Ends at white.
[[nodiscard]] std::vector<CSSColorValue> tintsOf(const CSSColorValue& color, std::size_t count);
/// Ends at black.
[[nodiscard]] std::vector<CSSColorValue> shadesOf(const CSSColorValue& color, std::size_t count);
/// Ends at the grey of the same lightness.
[[nodiscard]] std::vector<CSSColorValue> tonesOf(const CSSColorValue& color, std::size_t count);

}  // namespace vantorel
