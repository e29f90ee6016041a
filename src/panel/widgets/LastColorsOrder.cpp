#include "panel/widgets/LastColorsOrder.h"

#include <algorithm>
#include <utility>

namespace vantorel {

LastColorsOrder::LastColorsOrder(std::vector<HostColor> pinned, std::vector<HostColor> recent)
    : _pinned(std::move(pinned)), _others(std::move(recent))
{
    std::erase_if(_others, [this](const HostColor& color) {
        return std::find(_pinned.begin(), _pinned.end(), color) != _pinned.end();
    });
}

const HostColor& LastColorsOrder::colorAt(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return at < _pinned.size() ? _pinned[at] : _others[at - _pinned.size()];
}

bool LastColorsOrder::isPinned(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < _pinned.size();
}

std::vector<HostColor> LastColorsOrder::pinnedAfterMoving(int index, int step) const
{
    std::vector<HostColor> moved = _pinned;
    const int target = index + step;
    if (isPinned(index) && isPinned(target)) {
        std::swap(moved[static_cast<std::size_t>(index)], moved[static_cast<std::size_t>(target)]);
    }
    return moved;
}

std::vector<HostColor> LastColorsOrder::pinnedAfterDropping(const HostColor& color,
                                                            std::size_t place) const
{
    std::vector<HostColor> pinned = _pinned;
    pinned.insert(pinned.begin() + static_cast<std::ptrdiff_t>(place), color);
    // Its former place, if it was pinned, has moved if it is behind.
    for (std::size_t i = 0; i < pinned.size(); ++i) {
        if (i == place || pinned[i] != color) continue;
        pinned.erase(pinned.begin() + static_cast<std::ptrdiff_t>(i));
        break;
    }
    return pinned;
}

}  // namespace vantorel
