#pragma once

#include "csscolor/Contrast.h"

#include <QString>

/// Contrast as users read it.
namespace vantorel {

/// Returns a ratio in the user's notation, rounded down, so that a ratio shown as 4.5 is at least
/// 4.5. Two decimals; one from 10 on.
[[nodiscard]] QString shownContrastRatio(double ratio);

/// Returns the ratio and what WCAG 2.2 says about it, a line for each use.
[[nodiscard]] QString contrastDetails(double ratio);

/// The best level that text reaches.
enum class ContrastLevel { fails, largeText, normalText, enhanced };

[[nodiscard]] ContrastLevel contrastLevel(double ratio);
/// Returns "AAA", "AA", "AA large" or "fails".
[[nodiscard]] QString contrastLevelName(ContrastLevel level);

}  // namespace vantorel
