#include "colorlists/SortedColorKeys.h"

#include "colorlists/ColorSort.h"

#include <algorithm>

namespace vantorel {

void SortedColorKeys::update(const std::shared_ptr<const HostColorList>& list)
{
    if (list == _list && list->revision() == _revision) return;
    _list = list;
    _revision = list->revision();
    _places = sortedColorIndexes(*list);
    _positions.resize(_places.size());
    _colors.clear();
    _colors.reserve(_places.size());
    for (std::size_t position = 0; position < _places.size(); ++position) {
        _positions[_places[position]] = position;
        _colors.push_back(list->colorAtIndex(_places[position]));
    }
    _index.update(list);
}

std::vector<std::size_t> SortedColorKeys::positionsNear(const QTXHexColorSpec& color) const
{
    std::vector<std::size_t> positions = _index.placesNear(color);
    for (std::size_t& position : positions)
        position = _positions[position];
    std::sort(positions.begin(), positions.end());
    return positions;
}

}  // namespace vantorel
