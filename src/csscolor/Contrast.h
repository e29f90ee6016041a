#pragma once

#include "host/HostColor.h"

#include <optional>

/// The contrast of two colours, as defined by the Web Content Accessibility Guidelines 2.2.
/// Components outside 0..1 are clamped, and NaN counts as 0.
namespace vantorel {

/// Returns the relative luminance of a colour: 0 for black, 1 for white. The alpha is ignored.
/// Returns `std::nullopt` for a pattern.
[[nodiscard]] std::optional<double> relativeLuminance(const HostColor& color);

/// Composes a colour over another in encoded sRGB, as browsers do. The result has the combined
/// alpha of both. Returns `std::nullopt` if either is a pattern.
[[nodiscard]] std::optional<HostColor> composedOver(const HostColor& foreground,
                                                    const HostColor& background);

/// Returns the contrast ratio, 1..21. The background is composed over white, and the foreground
/// over the result. The ratio is not rounded, because one that only rounds to a limit does not
/// reach it. Returns `std::nullopt` if either colour is a pattern.
[[nodiscard]] std::optional<double> contrastRatio(const HostColor& foreground,
                                                  const HostColor& background);

/// The success criteria that a contrast ratio meets.
struct ContrastVerdicts {
    /// 1.4.3 and 1.4.6 for text: 4.5 and 7.
    bool normalTextAA = false;
    bool normalTextAAA = false;
    /// 1.4.3 and 1.4.6 for text of at least 18 points, or 14 points in bold: 3 and 4.5.
    bool largeTextAA = false;
    bool largeTextAAA = false;
    /// 1.4.11 for user-interface components and graphics: 3.
    bool componentAA = false;

    bool operator==(const ContrastVerdicts&) const = default;
};

/// Returns the criteria that a ratio meets; none for NaN.
[[nodiscard]] ContrastVerdicts contrastVerdicts(double ratio);

}  // namespace vantorel
