#pragma once

#include "host/HostColor.h"

#include <optional>

namespace vantorel {

/// Returns whether a colour lies on the 8-bit grid: no channel is 0.00002 or more above the step
/// below it. A channel just below a step counts as far above the previous one, so this is stricter
/// than `QTXHexColorSpec::isExact`, which accepts values slightly too small. Returns false for
/// `std::nullopt` and for patterns.
[[nodiscard]] bool exactHexColor(const std::optional<HostColor>& color);

/// Returns the Euclidean distance between two points.
[[nodiscard]] double distanceBetweenPoints(double x1, double y1, double x2, double y2);

}  // namespace vantorel
