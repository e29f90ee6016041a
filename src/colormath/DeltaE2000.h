#pragma once

#include "csscolor/ColorConversions.h"

namespace vantorel {

/// Returns the difference of two colours of CIE Lab by CIEDE2000: about 1 can just be seen.
[[nodiscard]] double deltaE2000(const ColorTriple& first, const ColorTriple& second);

/// Returns whether the difference of two colours may be below a limit. A few comparisons rule
/// out most pairs; only the others need `deltaE2000`.
[[nodiscard]] bool mayDifferByLessThan(double limit, const ColorTriple& first,
                                       const ColorTriple& second);

}  // namespace vantorel
