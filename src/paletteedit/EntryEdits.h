#pragma once

#include "paletteedit/PaletteEntry.h"

#include <cstddef>
#include <vector>

/// Edits of the entries of a list. Indexes start at 0 and may be given in any order; those out of
/// range are ignored. Each function returns the resulting entries.
namespace vantorel {

struct EntryEdit {
    PaletteEntries entries;
    /// The new indexes of the edited entries, ascending.
    std::vector<std::size_t> places;
};

/// Inserts entries before the one at index `before`, or at the end if it is out of range. Names are
/// tidied with `tidyName`. A name that is taken is replaced by a free one, an empty name by the
/// colour's hex code.
[[nodiscard]] EntryEdit withInserted(const PaletteEntries& entries, std::size_t before,
                                     const PaletteEntries& inserted);
[[nodiscard]] EntryEdit withRemoved(const PaletteEntries& entries,
                                    const std::vector<std::size_t>& places);
/// Moves the given entries, keeping their order, to just before the entry currently at index
/// `before`.
[[nodiscard]] EntryEdit withMoved(const PaletteEntries& entries,
                                  const std::vector<std::size_t>& places, std::size_t before);
/// Moves each given entry by one position, up if `step` is negative, else down. Entries at the edge
/// stay, and so do those adjacent to them, so that none overtakes another.
[[nodiscard]] EntryEdit withStepped(const PaletteEntries& entries,
                                    const std::vector<std::size_t>& places, int step);
/// Renames an entry. A name that is taken is replaced by a free one. An empty name leaves the entry
/// unchanged.
[[nodiscard]] EntryEdit withRenamed(const PaletteEntries& entries, std::size_t place,
                                    std::u16string_view name);
[[nodiscard]] EntryEdit withRecolored(const PaletteEntries& entries,
                                      const std::vector<std::size_t>& places,
                                      const HostColor& color);

}  // namespace vantorel
