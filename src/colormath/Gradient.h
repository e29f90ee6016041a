#pragma once

#include "csscolor/CSSColorValue.h"

#include <span>

namespace vantorel {

/// Returns the colour at a position of a gradient, 0..1, whose stops are evenly spaced. There must
/// be at least one stop. Neighbouring stops are mixed as in `mixed`.
[[nodiscard]] CSSColorValue gradientColor(std::span<const CSSColorValue> stops, double position,
                                          ColorSpace space, HueArc arc = HueArc::shorter);

}  // namespace vantorel
