#pragma once

#include <QRect>

namespace vantorel {

/// The places of swatches in rows of equal length, which fill a width exactly. Lengths are whole
/// device-independent pixels. Columns are counted in the reading direction.
class PaletteGrid {
public:
    /// As many columns as fit with swatches of the least width, at least one.
    explicit PaletteGrid(int width);

    [[nodiscard]] int columns() const { return _columns; }
    /// The height of a row, with the gap below it.
    [[nodiscard]] int rowHeight() const { return _side + _gap; }
    /// The place of an entry's swatch with the gap after it, which the last column does not have,
    /// and the gap below it.
    [[nodiscard]] QSize cellSize(int entry) const;
    /// The size of an entry's swatch.
    [[nodiscard]] QSize swatchSize(int entry) const;
    [[nodiscard]] int gap() const { return _gap; }

    /// Returns the entry before which something is inserted that is dropped at a point of the
    /// whole grid, as if there were any number of entries; never negative.
    [[nodiscard]] int entryBefore(QPoint point) const;

    /// Returns the entry of the same column this many rows further down, or up for a negative
    /// number, in a list of `count` entries. The first and the last row are the farthest; where the
    /// last row is too short for the column, the last entry is meant.
    [[nodiscard]] int entryBelow(int entry, int rows, int count) const;

private:
    /// The left edge of a column's swatch.
    [[nodiscard]] int leftOf(int column) const;

    int _width;
    int _gap;
    int _columns;
    int _side;
};

}  // namespace vantorel
