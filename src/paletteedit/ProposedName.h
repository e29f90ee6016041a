#pragma once

#include "paletteedit/PaletteEntry.h"

namespace vantorel {

/// The name to propose for a new colour of a list: that of the entry which is nearest to it, as
/// long as a picker would call the two close, with a free number behind it; else the hex code.
[[nodiscard]] std::u16string proposedName(const HostColor& color, const PaletteEntries& entries);

}  // namespace vantorel
