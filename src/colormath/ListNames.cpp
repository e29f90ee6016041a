#include "colormath/ListNames.h"

#include "color/ChannelConversion.h"
#include "csscolor/CSSColorValue.h"

namespace vantorel {
namespace {

bool areSameBytes(const HostColor& first, const HostColor& second)
{
    const auto left = cssValueOf(first).components;
    const auto right = cssValueOf(second).components;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (nearestByte(left[i]) != nearestByte(right[i])) return false;
    }
    return true;
}

}  // namespace

ListNames::ListNames(std::shared_ptr<const HostColorList> list)
    : _list(std::move(list)), _revision(_list->revision())
{
    std::vector<CSSColorValue> colors;
    for (std::size_t i = 0; i < _list->allKeys().size(); ++i) {
        const HostColor& color = _list->colorAtIndex(i);
        if (color.isPattern()) continue;
        _places.push_back(i);
        colors.push_back(cssValueOf(color));
    }
    if (!colors.empty()) _colors.emplace(colors);
}

std::optional<ListNames::Name> ListNames::nearest(const HostColor& color) const
{
    if (!_colors || color.isPattern()) return std::nullopt;
    const std::size_t place = _places[_colors->placeFor(cssValueOf(color))];
    const HostColor& found = _list->colorAtIndex(place);
    return Name{_list->allKeys()[place], found, areSameBytes(color, found)};
}

}  // namespace vantorel
