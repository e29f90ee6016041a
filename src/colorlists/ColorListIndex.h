#pragma once

#include "color/QTXHexColorSpec.h"
#include "host/HostColorList.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vantorel {

/// Finds the entries of a list that lie near a colour without a walk over the list, so that a list
/// of tens of thousands of names costs a mouse drag hardly more than a short one.
class ColorListIndex {
public:
    /// Reads the list, unless it is the one in hand, unchanged. Null is a list without entries.
    void update(const std::shared_ptr<const HostColorList>& list);

    /// The places in the list, in its order, of all entries that equal the colour or are close to
    /// it: those for which `isEqualToColor` or `isCloseToColor` is true.
    [[nodiscard]] std::vector<std::size_t> placesNear(const QTXHexColorSpec& color) const;

private:
    /// An entry on the 8-bit grid, in steps of 1/255.
    struct Entry {
        std::array<std::int16_t, 3> steps{};
        std::uint32_t place = 0;
    };

    void clear();
    void sortIntoCells(const std::vector<Entry>& entries);
    void addPlacesInCells(const QTXHexColorSpec& color, std::vector<std::size_t>& places) const;

    std::shared_ptr<const HostColorList> _list;
    std::uint64_t _revision = 0;
    /// Sorted by the cell of a coarse grid over the colour cube; cell i holds the entries from
    /// `_cellStarts[i]` up to `_cellStarts[i + 1]`.
    std::vector<Entry> _entries;
    std::vector<std::uint32_t> _cellStarts;
    /// The places of colours outside 0..1, which are rare enough to look at each time.
    std::vector<std::size_t> _outsideCube;
};

}  // namespace vantorel
