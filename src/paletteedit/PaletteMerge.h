#pragma once

#include "paletteedit/PaletteEntry.h"

#include <string>
#include <vector>

namespace vantorel {

struct PaletteMerge {
    PaletteEntries entries;
    /// The names to which both sides have given different colours. `entries` has the colours of
    /// `theirs`.
    std::vector<std::u16string> contradictions;
};

/// Merges two changed versions of one list. Entries are identified by their names.
///
/// Changes of either side are applied. A change takes precedence over a removal, so that no work is
/// lost. If both sides have added a name with different colours, the entry of `theirs` keeps the
/// name and that of `mine` gets a free one. The order is that of the side that has moved entries,
/// or of `mine` if both have.
[[nodiscard]] PaletteMerge mergePalettes(const PaletteEntries& base, const PaletteEntries& mine,
                                         const PaletteEntries& theirs);

}  // namespace vantorel
