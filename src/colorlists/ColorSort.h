#pragma once

#include "host/HostColorList.h"

#include <string>
#include <vector>

namespace vantorel {

/// Compares two entries for the palette order: returns -1 if `keyA` comes first, 1 if `keyB` does,
/// 0 if they are equal. Entries are compared by green, then blue, then red, larger values first.
/// Only the top four bits of each 8-bit component are compared, and alpha is ignored. A pattern, or
/// a key without a colour, counts as black.
[[nodiscard]] int colorSortFunc(const std::u16string& keyA, const std::u16string& keyB,
                                const HostColorList& list);

/// Like the overload above, for two colours.
[[nodiscard]] int colorSortFunc(const HostColor& colorA, const HostColor& colorB);

/// Returns the indexes of a list's entries in palette order. Equal entries keep their list order.
[[nodiscard]] std::vector<std::size_t> sortedColorIndexes(const HostColorList& list);

}  // namespace vantorel
