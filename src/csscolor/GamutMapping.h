#pragma once

#include "csscolor/CSSColorValue.h"
#include "csscolor/ColorConversions.h"
#include "host/HostColor.h"

namespace vantorel {

/// Whether a colour is outside sRGB by more than half an 8-bit step in any channel. Smaller
/// differences are attributed to rounding: colours on the border of sRGB are written with few
/// digits.
[[nodiscard]] bool isOutsideSRGB(const ColorTriple& srgb);

/// Clamps each channel to 0..1.
[[nodiscard]] ColorTriple clippedToSRGB(const ColorTriple& srgb);

/// Maps a colour into sRGB by `srgbByReducedChroma`. A colour that is not outside sRGB is only
/// clamped. The channels must be finite; those of the result are 0..1.
[[nodiscard]] ColorTriple mappedIntoSRGB(const ColorTriple& srgb);

/// Returns the nearest colour within sRGB of the same hue and about the same lightness, by the
/// algorithm of CSS Color 4, section 13.2: the chroma in OkLCh is bisected until clipping the
/// channels makes a difference that is just not noticeable. A lightness of 1 or more results in
/// white, one of 0 or less in black. The colour must be outside sRGB and finite.
[[nodiscard]] ColorTriple srgbByReducedChroma(const ColorTriple& oklab);

/// Maps a colour of any space into sRGB by `srgbByReducedChroma`, if it is outside. Its alpha
/// stays, and no component of the result is missing.
[[nodiscard]] CSSColorValue mappedIntoSRGB(const CSSColorValue& color);

/// The same for colours of the desktop. A pattern, and a colour with a channel that is not finite,
/// are not outside and stay as they are.
[[nodiscard]] bool isOutsideSRGB(const HostColor& color);
[[nodiscard]] HostColor mappedIntoSRGB(const HostColor& color);
/// Whether a colour is outside Display P3, too.
[[nodiscard]] bool isOutsideDisplayP3(const HostColor& color);

}  // namespace vantorel
