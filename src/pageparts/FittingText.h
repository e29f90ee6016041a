#pragma once

#include "host/HostDesktop.h"

namespace vantorel {

/// Returns the text, smaller if it is wider than `room` in points, but at least 7 points high.
[[nodiscard]] HostText fittingText(HostDesktop& desktop, HostText text, double room);

}  // namespace vantorel
