#pragma once

#include "host/HostColorList.h"

#include <string>
#include <vector>

namespace vantorel {

/// The order of a list's entries in the palette: -1 when `keyA` comes first, 1 when `keyB` does, 0
/// when neither. Green decides, then blue, then red, the larger first; only the top four bits of
/// each 8-bit component count, and alpha does not. A colour without RGB form, or a key without
/// colour, counts as black.
[[nodiscard]] int colorSortFunc(const std::u16string& keyA, const std::u16string& keyB,
                                const HostColorList& list);

/// As above, for two colours in place of two keys.
[[nodiscard]] int colorSortFunc(const HostColor& colorA, const HostColor& colorB);

/// The places of a list's entries in that order; equal entries keep the order of the list.
[[nodiscard]] std::vector<std::size_t> sortedColorIndexes(const HostColorList& list);

}  // namespace vantorel
