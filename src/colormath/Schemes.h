#pragma once

#include "csscolor/CSSColorValue.h"

#include <array>
#include <cstddef>
#include <vector>

namespace vantorel {

/// Colours that go together because of their places on the circle of hues.
enum class Scheme {
    /// The opposite hue.
    complement,
    /// The two neighbours of the opposite hue.
    split,
    /// Three hues at equal distances.
    triad,
    /// Four hues at equal distances.
    tetrad,
    /// Neighbouring hues.
    analogous,
};

inline constexpr std::array allSchemes{Scheme::complement, Scheme::split, Scheme::triad,
                                       Scheme::tetrad, Scheme::analogous};

struct ColorScheme {
    std::vector<CSSColorValue> colors;
    /// The place of the colour that the scheme was made from, which is one of its colours
    /// unchanged.
    std::size_t ownPlace = 0;
};

/// Returns the colours of a scheme, which differ only in their hue in OkLCh. They may be outside
/// sRGB. The colours of a grey are all the same.
[[nodiscard]] ColorScheme schemeOf(Scheme scheme, const CSSColorValue& color);

}  // namespace vantorel
