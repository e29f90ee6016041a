#pragma once

#include "csscolor/ColorConversions.h"

#include <cstddef>

namespace vantorel {

/// The spaces in which colours are mixed by eye, and the order of their components: lightness 0..1,
/// chroma and hue; hue, saturation and lightness; hue, saturation and value; lightness, a and b.
/// Hues are in degrees, and everything else goes to 100.
enum class MixSpace { oklch, hsl, hsv, lab };

/// Converts without clamping. HSL and HSV are coordinates of sRGB; for colours outside, they lie
/// outside their ranges, too. The hue of a grey is meaningless.
[[nodiscard]] ColorTriple srgbFromMixSpace(MixSpace space, const ColorTriple& components);
[[nodiscard]] ColorTriple mixSpaceFromSRGB(MixSpace space, const ColorTriple& srgb);

/// The components that a plane of colours shows from left to right and from below, and the one that
/// is chosen beside it.
struct MixAxes {
    std::size_t x;
    std::size_t y;
    std::size_t third;
};

[[nodiscard]] MixAxes axesOf(MixSpace space);

/// The values of a component that can be chosen. A hue ends where it begins.
struct MixRange {
    double minimum = 0;
    double maximum = 100;
    bool isHue = false;

    [[nodiscard]] double fractionOf(double value) const
    {
        return (value - minimum) / (maximum - minimum);
    }
    [[nodiscard]] double valueAt(double fraction) const
    {
        return minimum + (maximum - minimum) * fraction;
    }
};

/// The ranges contain all colours of Display P3.
[[nodiscard]] MixRange rangeOf(MixSpace space, std::size_t component);

/// Whether a component has no influence on a colour: the hue of a grey, and also the saturation of
/// black and, in HSL, of white.
[[nodiscard]] bool isPowerless(MixSpace space, const ColorTriple& components,
                               std::size_t component);

}  // namespace vantorel
