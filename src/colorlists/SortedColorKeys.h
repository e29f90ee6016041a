#pragma once

#include "colorlists/ColorListIndex.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// The keys and colours of a list in palette order (`colorSortFunc`).
class SortedColorKeys {
public:
    /// Sorts the keys of the list, unless it is already sorted and unchanged. `list` must not be
    /// null.
    void update(const std::shared_ptr<const HostColorList>& list);

    /// The number of keys; 0 before the first update.
    [[nodiscard]] std::size_t size() const { return _places.size(); }
    /// Here and below, `position` must be less than `size()`.
    [[nodiscard]] const std::u16string& operator[](std::size_t position) const
    {
        return _list->allKeys()[_places[position]];
    }
    [[nodiscard]] const HostColor& colorAtPosition(std::size_t position) const
    {
        return _colors[position];
    }
    [[nodiscard]] bool hasColorAtPosition(std::size_t position) const
    {
        return _list->hasColorAtIndex(_places[position]);
    }

    /// Returns the positions, ascending, of all keys whose colours equal the colour or are close to
    /// it.
    [[nodiscard]] std::vector<std::size_t> positionsNear(const QTXHexColorSpec& color) const;

private:
    std::shared_ptr<const HostColorList> _list;
    std::uint64_t _revision = 0;
    /// `_places` maps each position to its index in the list, `_positions` the reverse.
    std::vector<std::size_t> _places;
    std::vector<std::size_t> _positions;
    /// The colours in drawing order. For a long list this avoids many scattered memory accesses.
    std::vector<HostColor> _colors;
    ColorListIndex _index;
};

}  // namespace vantorel
