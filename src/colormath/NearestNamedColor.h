#pragma once

#include "csscolor/CSSNamedColors.h"
#include "host/HostColor.h"

#include <optional>

namespace vantorel {

/// The named colour of CSS that is nearest to a colour.
struct NearestNamedColor {
    CSSNamedColor color;
    /// Whether both are the same in 8 bits.
    bool isExact = false;
};

/// Returns the nearest of the 148 named colours, measured in Oklab without regard to the alpha; the
/// first by name if several have the same value. Components outside 0..1 are clamped, and NaN
/// counts as 0. Returns `std::nullopt` for a pattern.
[[nodiscard]] std::optional<NearestNamedColor> nearestNamedColor(const HostColor& color);

}  // namespace vantorel
