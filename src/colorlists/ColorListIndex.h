#pragma once

#include "color/QTXHexColorSpec.h"
#include "host/HostColorList.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vantorel {

/// Finds the entries of a list that are close to a colour without scanning the list, so that a list
/// of tens of thousands of names slows a mouse drag hardly more than a short one.
class ColorListIndex {
public:
    /// Indexes the list, unless it is already indexed and unchanged. Null counts as an empty list.
    void update(const std::shared_ptr<const HostColorList>& list);

    /// Returns the indexes, in list order, of all entries for which `isEqualToColor` or
    /// `isCloseToColor` is true.
    [[nodiscard]] std::vector<std::size_t> placesNear(const QTXHexColorSpec& color) const;

private:
    /// The colour of an entry in steps of 1/255, and its index in the list.
    struct Entry {
        std::array<std::int16_t, 3> steps{};
        std::uint32_t place = 0;
    };

    void sortIntoCells(const std::vector<Entry>& entries);
    void addPlacesInCells(const QTXHexColorSpec& color, std::vector<std::size_t>& places) const;

    std::shared_ptr<const HostColorList> _list;
    std::uint64_t _revision = 0;
    /// Sorted by the cell of a coarse grid over the colour cube. Cell i holds the entries from
    /// `_cellStarts[i]` up to, but excluding, `_cellStarts[i + 1]`.
    std::vector<Entry> _entries;
    std::vector<std::uint32_t> _cellStarts;
    /// The indexes of colours outside 0..1. They are rare, so every search scans them all.
    std::vector<std::size_t> _outsideCube;
};

}  // namespace vantorel
