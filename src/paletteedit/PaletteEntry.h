#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// A named colour of a list, limited to what a palette file can store. Copies share their data, so
/// that undo can keep many states of a long list at little cost.
class PaletteEntry {
public:
    /// Rounds the colour to bytes and makes it opaque; a pattern becomes black. The name is not
    /// changed; use `tidyName` to make it fit for a file.
    PaletteEntry(std::u16string name, const HostColor& color);

    [[nodiscard]] const std::u16string& name() const { return _data->name; }
    [[nodiscard]] const HostColor& color() const { return _data->color; }

    bool operator==(const PaletteEntry& other) const
    {
        return _data == other._data || *_data == *other._data;
    }

private:
    struct Data {
        std::u16string name;
        HostColor color;
        bool operator==(const Data&) const = default;
    };

    std::shared_ptr<const Data> _data;
};

/// Entries in list order. Their names are unique.
using PaletteEntries = std::vector<PaletteEntry>;

[[nodiscard]] PaletteEntries entriesOfList(const HostColorList& list);
[[nodiscard]] std::shared_ptr<HostColorList> listOfEntries(const std::u16string& name,
                                                           const PaletteEntries& entries);

/// Returns the colour as an entry stores it.
[[nodiscard]] HostColor paletteColor(const HostColor& color);
/// Returns "#RRGGBB".
[[nodiscard]] std::u16string hexCodeOf(const HostColor& color);

}  // namespace vantorel
