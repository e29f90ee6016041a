#pragma once

#include "host/HostColor.h"

#include <QString>

namespace vantorel {

/// Returns "#FF8000", or "#FF8000, 50 %" unless the colour is opaque in 8 bits.
[[nodiscard]] QString codeWithOpacity(const HostColor& color);

}  // namespace vantorel
