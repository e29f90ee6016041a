#pragma once

#include "host/HostColor.h"

#include <QString>

namespace vantorel {

/// Returns the hex code of a colour in the form of the Hex page's settings, with the opacity unless
/// the colour is opaque in 8 bits: "#FF800080". The colour is mapped into sRGB. Empty for a
/// pattern.
[[nodiscard]] QString plainHexCode(const HostColor& color);

/// Returns "#FF8000", or "#FF8000, 50 %" unless the colour is opaque in 8 bits.
[[nodiscard]] QString codeWithOpacity(const HostColor& color);

}  // namespace vantorel
