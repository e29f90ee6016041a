#pragma once

#include "host/HostColorList.h"
#include "host/HostGeometry.h"
#include "view/PaletteGeometry.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vantorel {

/// The layout of a list's swatches in a picture, as the picker's palette arranges them. The picture
/// must be at least 8 points wide and high.
class PalettePicture {
public:
    /// The geometry is two points off the corner, so the picture has a rim of this width in points.
    static constexpr double rim = 2;

    PalettePicture(const HostColorList& list, HostSize size);

    /// Returns the indices of the colours in the list, in the order of the swatches.
    [[nodiscard]] const std::vector<std::size_t>& places() const { return _places; }
    [[nodiscard]] const PaletteGrid& grid() const { return _grid; }
    /// Returns the size within the rim.
    [[nodiscard]] HostSize inside() const { return _inside; }
    /// Returns the rectangle of a swatch; the origin is the top left of the picture.
    [[nodiscard]] HostRect swatch(std::size_t index) const;

private:
    std::vector<std::size_t> _places;
    HostSize _inside;
    PaletteGrid _grid;
};

/// Returns the palette as SVG. Each swatch has the name of its colour as a title.
[[nodiscard]] std::string paletteSvg(const HostColorList& list, HostSize size);

}  // namespace vantorel
