#pragma once

#include "paletteedit/PaletteEntry.h"

namespace vantorel {

/// Proposes a name for a new colour of a list: the name of the nearest entry with a free number, if
/// the two colours are close enough for a picker to match them, else the hex code.
[[nodiscard]] std::u16string proposedName(const HostColor& color, const PaletteEntries& entries);

}  // namespace vantorel
