#pragma once

#include "csscolor/ColorSpaces.h"
#include "host/HostColor.h"

#include <array>
#include <optional>
#include <string_view>

namespace vantorel {

/// A colour as CSS computes with it: in the space in which it was written, not clamped or mapped.
struct CSSColorValue {
    ColorSpace space = ColorSpace::srgb;
    /// In the units of `ColorSpace`. Missing components are 0.
    ColorTriple components{};
    /// 0..1.
    double alpha = 1;
    /// Whether a component was written as `none` (CSS Color 4, section 4.4).
    std::array<bool, 3> isMissing{};
    bool isAlphaMissing = false;
};

/// Returns a colour in the space sRGB, with channels outside 0..1 if it is outside sRGB. A pattern
/// is black.
[[nodiscard]] CSSColorValue cssValueOf(const HostColor& color);

/// Converts a colour to another space for computing with it (CSS Color 4, section 12). A component
/// that was missing stays missing if the space has an analogous one. The hue of a grey becomes
/// missing.
[[nodiscard]] CSSColorValue converted(const CSSColorValue& color, ColorSpace space);

/// Which way round the circle hues are mixed (CSS Color 4, section 12.4).
enum class HueArc { shorter, longer, increasing, decreasing };

/// Returns an arc by its name in `color-mix()`, which must be in lower case.
[[nodiscard]] std::optional<HueArc> hueArcNamed(std::u16string_view name);

/// Mixes two colours in a space (CSS Color 4, section 12): `share` of the second, 0..1, and the
/// rest of the first. Components are weighted by the alpha. A component that is missing in one
/// colour is taken from the other.
[[nodiscard]] CSSColorValue mixed(const CSSColorValue& first, const CSSColorValue& second,
                                  double share, ColorSpace space, HueArc arc = HueArc::shorter);

}  // namespace vantorel
