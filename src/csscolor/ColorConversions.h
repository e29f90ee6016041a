#pragma once

#include <array>

/// Conversions between colour spaces, as in CSS Color 4. Values are not clamped, so colours may lie
/// outside any gamut. If the absolute values of the input are at most `largestCSSNumber`, any chain
/// of these functions from a CSS colour space to sRGB returns finite values.
namespace vantorel {

/// Three components of a colour, in the order of the space's name.
using ColorTriple = std::array<double, 3>;
using ColorMatrix = std::array<std::array<double, 3>, 3>;

[[nodiscard]] ColorTriple multiplied(const ColorMatrix& matrix, const ColorTriple& vector);

/// Returns the equivalent of an angle in [0, 360) degrees.
[[nodiscard]] double normalizedHue(double degrees);

/// Converts encoded sRGB to linear light (section 10.2). Negative values mirror positive ones.
[[nodiscard]] double linearFromSRGB(double encoded);
[[nodiscard]] double srgbFromLinear(double linear);
[[nodiscard]] ColorTriple linearFromSRGB(const ColorTriple& encoded);
[[nodiscard]] ColorTriple srgbFromLinear(const ColorTriple& linear);

/// XYZ is relative to D65, with Y = 1 for white.
[[nodiscard]] ColorTriple xyzFromLinearSRGB(const ColorTriple& linear);
[[nodiscard]] ColorTriple linearSRGBFromXYZ(const ColorTriple& xyz);

/// The linear Bradford transforms between the white points D50 and D65.
[[nodiscard]] ColorTriple xyzFromXYZD50(const ColorTriple& xyz);
[[nodiscard]] ColorTriple xyzD50FromXYZ(const ColorTriple& xyz);

/// CIE Lab is relative to D50, with a lightness of 0..100 (section 9.3).
[[nodiscard]] ColorTriple xyzD50FromLab(const ColorTriple& lab);
[[nodiscard]] ColorTriple labFromXYZD50(const ColorTriple& xyz);

/// Oklab has a lightness of 0..1 (section 9.4).
[[nodiscard]] ColorTriple oklabFromXYZ(const ColorTriple& xyz);
[[nodiscard]] ColorTriple xyzFromOklab(const ColorTriple& oklab);
[[nodiscard]] ColorTriple oklabFromSRGB(const ColorTriple& srgb);
[[nodiscard]] ColorTriple srgbFromOklab(const ColorTriple& oklab);

/// The two steps from Oklab to linear sRGB, for code that converts many colours at a time: the
/// first matrix times Oklab gives the cube roots of what the cones of the eye see, and the second
/// one times their cubes gives linear sRGB.
[[nodiscard]] const ColorMatrix& coneRootsFromOklab();
[[nodiscard]] const ColorMatrix& linearSRGBFromCones();

/// Converts lightness, a and b to lightness, chroma and hue in degrees: Lab to LCH and Oklab to
/// OkLCh. The hue of a grey is meaningless.
[[nodiscard]] ColorTriple polarFromRectangular(const ColorTriple& rectangular);
[[nodiscard]] ColorTriple rectangularFromPolar(const ColorTriple& polar);

/// Hue in degrees, saturation and lightness in percent (section 7).
[[nodiscard]] ColorTriple srgbFromHSL(const ColorTriple& hsl);
/// The hue and the saturation of a grey are 0. The saturation of a colour outside sRGB can be above
/// 100, but is never negative.
[[nodiscard]] ColorTriple hslFromSRGB(const ColorTriple& srgb);

/// Hue in degrees, whiteness and blackness in percent (section 8).
[[nodiscard]] ColorTriple srgbFromHWB(const ColorTriple& hwb);
/// The hue of a grey is 0.
[[nodiscard]] ColorTriple hwbFromSRGB(const ColorTriple& srgb);

}  // namespace vantorel
