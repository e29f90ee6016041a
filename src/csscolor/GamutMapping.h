#pragma once

#include "csscolor/ColorConversions.h"

namespace vantorel {

/// Whether a colour lies outside sRGB by more than half a step of 8 bits in some channel. What lies
/// closer is put down to the few digits that colours on the border of sRGB are written with.
[[nodiscard]] bool isOutsideSRGB(const ColorTriple& srgb);

/// Cuts each channel to 0..1.
[[nodiscard]] ColorTriple clippedToSRGB(const ColorTriple& srgb);

/// The colour itself when it is not outside sRGB, else what `srgbByReducedChroma` makes of it. The
/// channels must be finite; those of the result are 0..1.
[[nodiscard]] ColorTriple mappedIntoSRGB(const ColorTriple& srgb);

/// The nearest colour within sRGB of the same hue and about the same lightness, by the algorithm of
/// CSS Color 4, section 13.2: the chroma in OkLCh is bisected until cutting the channels makes a
/// difference that is just not noticeable. White from lightness 1 on, black from 0 down. For
/// colours outside sRGB; finite.
[[nodiscard]] ColorTriple srgbByReducedChroma(const ColorTriple& oklab);

}  // namespace vantorel
