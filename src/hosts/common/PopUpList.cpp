#include "hosts/common/PopUpList.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

int popUpRowHeight(int textHeight, double scale)
{
    constexpr double smallestContent = 16;
    constexpr int padding = 3;
    return std::max(textHeight, static_cast<int>(std::lround(smallestContent * scale))) +
           2 * padding;
}

std::vector<const HostMenuItem*> itemsToMeasure(const HostMenu& menu)
{
    // No letter is narrower than a pixel.
    constexpr std::size_t mostLetters = widestPopUpList;
    constexpr std::size_t mostTitles = 200;
    std::size_t longest = 0;
    for (const HostMenuItem& item : menu)
        longest = std::max(longest, std::min(item.title.size(), mostLetters));
    std::vector<const HostMenuItem*> items;
    for (const HostMenuItem& item : menu) {
        if (item.separator || item.title.size() * 4 < longest * 3) continue;
        items.push_back(&item);
        if (items.size() == mostTitles) break;
    }
    return items;
}

PixelRect placeOfPopUpList(const PopUpListRequest& request)
{
    constexpr int mostRows = 24;
    const PixelRect& button = request.button;
    const PixelRect& room = request.room;
    const int rowHeight = std::max(request.rowHeight, 1);
    const int wanted = rowHeight * std::min(request.rows, mostRows) + request.frames;
    const int below = room.y + room.height - (button.y + button.height);
    const int above = button.y - room.y;
    const bool opensBelow = wanted <= below || below >= above;
    const int height = std::min(wanted, std::max(opensBelow ? below : above, rowHeight));
    const int width = std::max(request.width, button.width);
    const int left = std::clamp(button.x, room.x, std::max(room.x, room.x + room.width - width));
    return {left, opensBelow ? button.y + button.height : button.y - height, width, height};
}

void ReleaseRule::pointerMovedInside(PixelPoint place)
{
    if (!_firstPlace) _firstPlace = place;
    const double distance = std::abs(place.x - _firstPlace->x) + std::abs(place.y - _firstPlace->y);
    if (distance >= _dragDistance) _releaseChooses = true;
}

}  // namespace vantorel
