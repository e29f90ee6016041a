#pragma once

#include "csscolor/CSSColorValue.h"

/// Changes to one component of a colour, in a space with polar coordinates: HSL, LCH or OkLCh. An
/// amount of 1 is what CSS calls 100% of the component, and may be negative. HSL holds only sRGB,
/// so other colours are first mapped into it. The results are in the given space.
namespace vantorel {

/// Adds to the lightness, which stays between those of black and white.
[[nodiscard]] CSSColorValue lightened(const CSSColorValue& color, double amount, ColorSpace space);

/// Adds to the saturation or chroma. A grey has no hue to saturate, and stays grey.
[[nodiscard]] CSSColorValue saturated(const CSSColorValue& color, double amount, ColorSpace space);

/// Turns the hue. A grey stays as it is.
[[nodiscard]] CSSColorValue rotated(const CSSColorValue& color, double degrees, ColorSpace space);

}  // namespace vantorel
