#include "panel/palettes/PaletteGrid.h"

#include "hosts/qt/TextScale.h"

#include <algorithm>

namespace vantorel {
namespace {

// In points.
constexpr int leastSwatch = 28;
constexpr int swatchGap = 4;

}  // namespace

PaletteGrid::PaletteGrid(int width)
    : _width(std::max(width, scaled(leastSwatch))),
      _gap(scaled(swatchGap)),
      _columns(std::max(1, (_width + _gap) / (scaled(leastSwatch) + _gap))),
      _side((_width + _gap) / _columns - _gap)
{
}

int PaletteGrid::leftOf(int column) const
{
    return (_width + _gap) * column / _columns;
}

QSize PaletteGrid::cellSize(int entry) const
{
    const QSize swatch = swatchSize(entry);
    const bool isLast = entry % _columns == _columns - 1;
    return {swatch.width() + (isLast ? 0 : _gap), swatch.height() + _gap};
}

QSize PaletteGrid::swatchSize(int entry) const
{
    const int column = entry % _columns;
    return {leftOf(column + 1) - _gap - leftOf(column), _side};
}

int PaletteGrid::entryBelow(int entry, int rows, int count) const
{
    const int last = count - 1;
    const int row = std::clamp(entry / _columns + rows, 0, last / _columns);
    return std::min(row * _columns + entry % _columns, last);
}

int PaletteGrid::entryBefore(QPoint point) const
{
    const int row = std::max(point.y(), 0) / rowHeight();
    int column = 0;
    while (column < _columns && point.x() > leftOf(column) + swatchSize(column).width() / 2)
        ++column;
    return row * _columns + column;
}

}  // namespace vantorel
