#pragma once

#include "paletteedit/PaletteEntry.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace vantorel {

/// A typed name as a palette file gives it back: control characters are blanks, blanks around it
/// are left out, an unpaired surrogate is U+FFFD. May be empty.
[[nodiscard]] std::u16string tidyName(std::u16string_view typed);

/// Names that are in use, and names that are not: "Red", else "Red 2", "Red 3". Where "Red 2" is
/// wanted and in use, "Red 3" follows.
class FreeNames {
public:
    FreeNames() = default;
    explicit FreeNames(const PaletteEntries& entries);

    void use(const std::u16string& name) { _used.insert(name); }
    /// Finds a free name, and uses it.
    std::u16string take(const std::u16string& wanted);

private:
    std::unordered_set<std::u16string> _used;
    /// So that thousands of one name do not each try all the numbers before theirs.
    std::unordered_map<std::u16string, std::size_t> _lastNumbers;
};

}  // namespace vantorel
