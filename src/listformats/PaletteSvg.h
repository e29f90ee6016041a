#pragma once

#include "host/HostColorList.h"
#include "host/HostGeometry.h"
#include "view/PaletteGeometry.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vantorel {

/// The swatches of a list as the picker's palette arranges them, in a picture of at least 8 points
/// in width and height.
class PalettePicture {
public:
    /// The geometry draws two points off the corner; a rim of that width comes out on all sides.
    static constexpr double rim = 2;

    PalettePicture(const HostColorList& list, HostSize size);

    /// The places in the list, in the order of the swatches.
    [[nodiscard]] const std::vector<std::size_t>& places() const { return _places; }
    [[nodiscard]] const PaletteGrid& grid() const { return _grid; }
    /// The size within the rim.
    [[nodiscard]] HostSize inside() const { return _inside; }
    /// Where a swatch is, from the top left of the picture.
    [[nodiscard]] HostRect swatch(std::size_t index) const;

private:
    std::vector<std::size_t> _places;
    HostSize _inside;
    PaletteGrid _grid;
};

/// The swatches in the palette's order, each with its name as a title.
[[nodiscard]] std::string paletteSvg(const HostColorList& list, HostSize size);

}  // namespace vantorel
