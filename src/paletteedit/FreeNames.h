#pragma once

#include "paletteedit/PaletteEntry.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace vantorel {

/// Returns a typed name as it would be read back from a palette file: control characters become
/// spaces, leading and trailing spaces are removed, and unpaired surrogates become U+FFFD. The
/// result may be empty.
[[nodiscard]] std::u16string tidyName(std::u16string_view typed);

/// Keeps track of the names in use and makes free ones: "Red", else "Red 2", "Red 3" and so on. If
/// "Red 2" is wanted but in use, "Red 3" is tried next.
class FreeNames {
public:
    FreeNames() = default;
    explicit FreeNames(const PaletteEntries& entries);

    void use(const std::u16string& name) { _used.insert(name); }
    /// Returns a free name and marks it as used.
    std::u16string take(const std::u16string& wanted);

private:
    std::unordered_set<std::u16string> _used;
    /// The last number used for each name, so that thousands of equal names do not each try all the
    /// numbers before theirs.
    std::unordered_map<std::u16string, std::size_t> _lastNumbers;
};

}  // namespace vantorel
