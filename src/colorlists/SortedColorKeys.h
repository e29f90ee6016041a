#pragma once

#include "colorlists/ColorListIndex.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// The keys of a list in the order of the palette (`colorSortFunc`), with their colours.
class SortedColorKeys {
public:
    /// Sorts the keys of the list, unless it is the one in hand, unchanged. Must not be null.
    void update(const std::shared_ptr<const HostColorList>& list);

    /// 0 before the first update.
    [[nodiscard]] std::size_t size() const { return _places.size(); }
    /// `position` must be below the size, here and below.
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

    /// The positions, ascending, of all keys whose colours equal the colour or are close to it.
    [[nodiscard]] std::vector<std::size_t> positionsNear(const QTXHexColorSpec& color) const;

private:
    std::shared_ptr<const HostColorList> _list;
    std::uint64_t _revision = 0;
    /// The place in the list of each position, and the other way round.
    std::vector<std::size_t> _places;
    std::vector<std::size_t> _positions;
    /// The colours in the order in which they are drawn, which for a long list saves many a walk
    /// through memory.
    std::vector<HostColor> _colors;
    ColorListIndex _index;
};

}  // namespace vantorel
