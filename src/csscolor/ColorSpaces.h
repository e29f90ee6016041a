#pragma once

#include "csscolor/ColorConversions.h"

#include <array>
#include <optional>
#include <string_view>

namespace vantorel {

/// The spaces in which CSS colours are written and mixed (CSS Color 4). The units of their
/// components are those of CSS numbers: hues in degrees; saturation, lightness, whiteness and
/// blackness 0..100; the lightness of Lab and LCH 0..100, of Oklab and OkLCh 0..1; all others 0..1.
/// Components may lie outside.
enum class ColorSpace {
    srgb,
    srgbLinear,
    displayP3,
    displayP3Linear,
    a98RGB,
    proPhotoRGB,
    rec2020,
    /// "xyz" and "xyz-d65".
    xyzD65,
    xyzD50,
    hsl,
    hwb,
    lab,
    lch,
    oklab,
    oklch,
};

/// Returns a space of `color()` (section 10), whose name must be in lower case; `std::nullopt` if
/// there is none.
[[nodiscard]] std::optional<ColorSpace> predefinedColorSpaceNamed(std::u16string_view name);

/// Returns any of the spaces by its name in `color-mix()`, which must be in lower case.
[[nodiscard]] std::optional<ColorSpace> colorSpaceNamed(std::u16string_view name);

/// What a component stands for. Components of two spaces that stand for the same are analogous
/// (section 12.2).
enum class ColorComponent {
    red,
    green,
    blue,
    lightness,
    /// Chroma, or saturation.
    colorfulness,
    hue,
    a,
    b,
    whiteness,
    blackness,
};

[[nodiscard]] const std::array<ColorComponent, 3>& componentsOf(ColorSpace space);

/// Returns the place of the hue in a space with polar coordinates, otherwise `std::nullopt`.
[[nodiscard]] std::optional<std::size_t> placeOfHue(ColorSpace space);

/// Returns the names by which relative colours refer to the components (CSS Color 5, section 4).
[[nodiscard]] const std::array<std::u16string_view, 3>& componentKeywords(ColorSpace space);

/// Converts components without clamping or mapping. Hues of the result are 0..360.
[[nodiscard]] ColorTriple convertedColor(const ColorTriple& values, ColorSpace from, ColorSpace to);

/// Like `convertedColor` to sRGB, with channels of 0..1.
[[nodiscard]] ColorTriple srgbFrom(ColorSpace space, const ColorTriple& values);

/// Whether the components, in this space, are those of a grey, whose hue has no meaning
/// (sections 7, 8 and 9). False for spaces without a hue.
[[nodiscard]] bool isHuePowerless(ColorSpace space, const ColorTriple& values);

}  // namespace vantorel
