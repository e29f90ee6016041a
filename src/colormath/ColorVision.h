#pragma once

#include "csscolor/CSSColorValue.h"
#include "csscolor/ColorConversions.h"

namespace vantorel {

/// Ways of seeing colours that lack one kind of cones, or all.
enum class ColorVision { protanopia, deuteranopia, tritanopia, grey };

/// Returns how light looks: linear sRGB of any range, of which the result is a linear function.
[[nodiscard]] ColorTriple seenInLinearLight(ColorVision vision, const ColorTriple& linear);

/// Returns how a colour looks. The colour is first mapped into sRGB, and so is the result.
[[nodiscard]] CSSColorValue seenWith(ColorVision vision, const CSSColorValue& color);

}  // namespace vantorel
