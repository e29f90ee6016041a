#pragma once

#include "csscolor/CSSColorReader.h"
#include "host/HostColor.h"

namespace vantorel {

/// Returns a colour that has been read as it was written. If it is outside sRGB, components are
/// below 0 or above 1.
[[nodiscard]] HostColor unmappedColor(const CSSColor& color);

}  // namespace vantorel
