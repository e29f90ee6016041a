#pragma once

#include "csscolor/CSSColorValue.h"

namespace vantorel {

/// Ways of seeing colours that lack one kind of cones, or all.
enum class ColorVision { protanopia, deuteranopia, tritanopia, grey };

/// Returns how a colour looks. The colour is first mapped into sRGB, and so is the result.
[[nodiscard]] CSSColorValue seenWith(ColorVision vision, const CSSColorValue& color);

}  // namespace vantorel
