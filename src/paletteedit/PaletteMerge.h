#pragma once

#include "paletteedit/PaletteEntry.h"

#include <string>
#include <vector>

namespace vantorel {

struct PaletteMerge {
    PaletteEntries entries;
    /// The names to which both sides have given different colours. `entries` has theirs.
    std::vector<std::u16string> contradictions;
};

/// Brings two changed states of one list together. Entries are told apart by their names.
///
/// What one side changed is taken over; a change beats a removal, so that no work is lost. Where
/// both have added a name with different colours, theirs keeps it and mine gets a free one. A new
/// order is taken from the side that has moved entries, from mine where both have.
[[nodiscard]] PaletteMerge mergePalettes(const PaletteEntries& base, const PaletteEntries& mine,
                                         const PaletteEntries& theirs);

}  // namespace vantorel
