#pragma once

#include "host/HostColor.h"

#include <optional>

namespace vantorel {

/// Whether a colour lies on the 8-bit grid: no channel is 0.00002 or more above the step below it.
/// A channel just under a step counts as far above the one before. Stricter than
/// `QTXHexColorSpec::isExact`, which forgives what falls a hair short. False for no colour and for
/// one without RGB form.
[[nodiscard]] bool exactHexColor(const std::optional<HostColor>& color);

/// The Euclidean distance.
[[nodiscard]] double distanceBetweenPoints(double x1, double y1, double x2, double y2);

}  // namespace vantorel
