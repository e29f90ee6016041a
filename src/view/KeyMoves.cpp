#include "view/KeyMoves.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

constexpr int lastColumn = 5;
constexpr int lastDigitValue = 15;

/// Returns the arrow that a key repeats up to the edge, or the key itself.
HostKey arrowTowardsEdge(HostKey key)
{
    switch (key) {
        case HostKey::home:
            return HostKey::left;
        case HostKey::end:
            return HostKey::right;
        case HostKey::pageUp:
            return HostKey::up;
        case HostKey::pageDown:
            return HostKey::down;
        default:
            return key;
    }
}

HostPoint centroid(const WheelCell& cell)
{
    const auto& [a, b, c] = cell.corners;
    return {(a.x + b.x + c.x) / 3, (a.y + b.y + c.y) / 3};
}

/// Returns the neighbour in the direction of an arrow, or `index` at the edge. Up and Down follow a
/// strip of triangles, Left and Right a row.
std::size_t wheelNeighbour(const std::vector<WheelCell>& cells, std::size_t index, HostKey arrow)
{
    const bool isVertical = arrow == HostKey::up || arrow == HostKey::down;
    const double sign = arrow == HostKey::up || arrow == HostKey::right ? 1 : -1;
    // The triangles of a strip zigzag, so a step up may go as far aside as up. In a row, the
    // nearest triangle lies in another row, above or below.
    const double costOfAside = isVertical ? 1 : 3;
    const HostPoint from = centroid(cells[index]);
    std::size_t found = index;
    double lowestCost = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const HostPoint to = centroid(cells[i]);
        const double ahead = sign * (isVertical ? to.y - from.y : to.x - from.x);
        const double aside = std::abs(isVertical ? to.x - from.x : to.y - from.y);
        // A little more than nothing: centroids of one row differ in the last digits.
        if (ahead < 1e-6 || aside > ahead) continue;
        const double cost = ahead + costOfAside * aside;
        if (found == index || cost < lowestCost) {
            found = i;
            lowestCost = cost;
        }
    }
    return found;
}

}  // namespace

SliderCell sliderCellAfterKey(const SliderCell& cell, HostKey key)
{
    int column = 2 * cell.component + 1 - cell.digit;
    int value = cell.value;
    switch (key) {
        case HostKey::left:
            column = std::max(column - 1, 0);
            break;
        case HostKey::right:
            column = std::min(column + 1, lastColumn);
            break;
        case HostKey::home:
            column = 0;
            break;
        case HostKey::end:
            column = lastColumn;
            break;
        case HostKey::up:
            value = std::min(value + 1, lastDigitValue);
            break;
        case HostKey::down:
            value = std::max(value - 1, 0);
            break;
        case HostKey::pageUp:
            value = lastDigitValue;
            break;
        case HostKey::pageDown:
            value = 0;
            break;
        case HostKey::pick:
            break;
    }
    return {column / 2, 1 - column % 2, value};
}

std::size_t paletteIndexAfterKey(const PaletteGrid& grid, std::size_t count, std::size_t index,
                                 HostKey key)
{
    const auto across = static_cast<std::size_t>(grid.across);
    if (across == 0) return index;
    const std::size_t column = index % across;
    const std::size_t row = index / across;
    const std::size_t firstOfRow = row * across;
    const std::size_t lastOfRow = std::min(firstOfRow + across, count) - 1;
    switch (key) {
        case HostKey::left:
            return std::max(index, firstOfRow + 1) - 1;
        case HostKey::right:
            return std::min(index + 1, lastOfRow);
        case HostKey::home:
            return firstOfRow;
        case HostKey::end:
            return lastOfRow;
        case HostKey::up:
            return row > 0 ? index - across : index;
        case HostKey::down:
            return index + across < count ? index + across : index;
        case HostKey::pageUp:
            return column;
        case HostKey::pageDown:
            return column + (count - 1 - column) / across * across;
        case HostKey::pick:
            break;
    }
    return index;
}

std::size_t wheelIndexAfterKey(const std::vector<WheelCell>& cells, std::size_t index, HostKey key)
{
    if (key == HostKey::pick) return index;
    const HostKey arrow = arrowTowardsEdge(key);
    std::size_t next = wheelNeighbour(cells, index, arrow);
    if (arrow == key) return next;
    while (next != index) {
        index = next;
        next = wheelNeighbour(cells, index, arrow);
    }
    return index;
}

}  // namespace vantorel
