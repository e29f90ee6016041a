#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// A named colour of a list, as a palette file can keep it. Copies share what they hold: a long
/// list costs little in each of the states that undo needs.
class PaletteEntry {
public:
    /// The colour is rounded to bytes and made opaque; a pattern becomes black. The name is taken
    /// as it is; `tidyName` makes it fit for a file.
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

/// In their order. No two have one name.
using PaletteEntries = std::vector<PaletteEntry>;

[[nodiscard]] PaletteEntries entriesOfList(const HostColorList& list);
[[nodiscard]] std::shared_ptr<HostColorList> listOfEntries(const std::u16string& name,
                                                           const PaletteEntries& entries);

/// The colour as an entry keeps it.
[[nodiscard]] HostColor paletteColor(const HostColor& color);
/// "#RRGGBB"
[[nodiscard]] std::u16string hexCodeOf(const HostColor& color);

}  // namespace vantorel
