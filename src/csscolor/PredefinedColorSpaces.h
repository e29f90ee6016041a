#pragma once

#include "csscolor/ColorConversions.h"

#include <optional>
#include <string_view>

namespace vantorel {

/// The colour spaces of `color()` (CSS Color 4, section 10).
enum class PredefinedColorSpace {
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
};

/// Returns the space of a name, which must be in lower case; `std::nullopt` if there is none.
[[nodiscard]] std::optional<PredefinedColorSpace> predefinedColorSpaceNamed(
    std::u16string_view name);

/// Converts encoded values of a space to encoded sRGB. Values are not clamped.
[[nodiscard]] ColorTriple srgbFromPredefined(PredefinedColorSpace space, const ColorTriple& values);

}  // namespace vantorel
