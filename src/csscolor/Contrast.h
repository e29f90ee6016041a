#pragma once

#include "host/HostColor.h"

#include <optional>

/// How well a colour stands out from another, as the Web Content Accessibility Guidelines 2.2
/// measure it. Fractions outside 0..1 count as the nearer end, and NaN as 0.
namespace vantorel {

/// The relative luminance of an opaque colour: 0 for black, 1 for white. The alpha does not count.
/// Empty for a pattern.
[[nodiscard]] std::optional<double> relativeLuminance(const HostColor& color);

/// A colour laid over another, mixed in sRGB as it is stored, as browsers do. The result has the
/// alpha that both have together. Empty when one is a pattern.
[[nodiscard]] std::optional<HostColor> composedOver(const HostColor& foreground,
                                                    const HostColor& background);

/// The contrast ratio, 1..21: of what is seen when the background lies over white and the
/// foreground over both. Not rounded, since a ratio that only rounds to a limit does not reach it.
/// Empty when one is a pattern.
[[nodiscard]] std::optional<double> contrastRatio(const HostColor& foreground,
                                                  const HostColor& background);

/// Which success criteria a contrast ratio meets.
struct ContrastVerdicts {
    /// 1.4.3 and 1.4.6 for text: 4.5 and 7.
    bool normalTextAA = false;
    bool normalTextAAA = false;
    /// The same for text from 18 points on, or 14 points in bold: 3 and 4.5.
    bool largeTextAA = false;
    bool largeTextAAA = false;
    /// 1.4.11 for user-interface components and graphics: 3.
    bool componentAA = false;

    bool operator==(const ContrastVerdicts&) const = default;
};

/// NaN meets none.
[[nodiscard]] ContrastVerdicts contrastVerdicts(double ratio);

}  // namespace vantorel
