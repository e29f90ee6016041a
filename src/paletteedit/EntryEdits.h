#pragma once

#include "paletteedit/PaletteEntry.h"

#include <cstddef>
#include <vector>

/// What can be done to the entries of a list. Places count from 0, in any order; places beyond the
/// end are passed over. Each gives the entries afterwards.
namespace vantorel {

struct EntryEdit {
    PaletteEntries entries;
    /// Where the entries that were worked on stand now, ascending.
    std::vector<std::size_t> places;
};

/// Puts new entries before the one at `before`, or at the end. Names are tidied; one that is taken,
/// or says nothing, makes way for a free one (an empty name for the hex code).
[[nodiscard]] EntryEdit withInserted(const PaletteEntries& entries, std::size_t before,
                                     const PaletteEntries& inserted);
[[nodiscard]] EntryEdit withRemoved(const PaletteEntries& entries,
                                    const std::vector<std::size_t>& places);
/// Moves entries together, in their order, before the one that is at `before` now.
[[nodiscard]] EntryEdit withMoved(const PaletteEntries& entries,
                                  const std::vector<std::size_t>& places, std::size_t before);
/// Moves each entry by one, up for -1 and down for 1; those at the edge stay, and others behind
/// them, so that none overtakes another.
[[nodiscard]] EntryEdit withStepped(const PaletteEntries& entries,
                                    const std::vector<std::size_t>& places, int step);
/// A name that is taken makes way for a free one; an empty name changes nothing.
[[nodiscard]] EntryEdit withRenamed(const PaletteEntries& entries, std::size_t place,
                                    std::u16string_view name);
[[nodiscard]] EntryEdit withRecolored(const PaletteEntries& entries,
                                      const std::vector<std::size_t>& places,
                                      const HostColor& color);

}  // namespace vantorel
