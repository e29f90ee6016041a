#pragma once

#include "csscolor/CSSColorValue.h"

#include <cstddef>
#include <span>
#include <vector>

/// Differences of colours as CSS Color 4 measures them: deltaE OK, the distance in Oklab. The alpha
/// is ignored.
namespace vantorel {

/// Finds the nearest of many colours. Only those of about the same lightness are looked at, so that
/// tens of thousands of colours hardly slow a mouse drag.
class NearestColor {
public:
    /// Components that are not numbers count as 0.
    explicit NearestColor(std::span<const CSSColorValue> colors);

    /// Returns the place of the nearest colour, the first of equals. There must be a colour.
    [[nodiscard]] std::size_t placeFor(const CSSColorValue& color) const;

private:
    struct Entry {
        ColorTriple oklab;
        std::size_t place;
    };
    /// Sorted by lightness.
    std::vector<Entry> _entries;
};

/// Adds colours to a list until it has `count`: each time the one whose nearest neighbour in the
/// list is farthest away. The first colour of an empty list is the most colourful one. They are
/// taken from the 4,096 colours with hex codes such as "#f80", without those that are hard to see
/// on black or on white. Always returns the same colours for the same list.
[[nodiscard]] std::vector<CSSColorValue> withDistinctColors(std::vector<CSSColorValue> colors,
                                                            std::size_t count);

}  // namespace vantorel
