#include "colorlists/ColorNamesPopUp.h"

#include <algorithm>
#include <unordered_map>

namespace vantorel {
namespace {

constexpr HostSize swatchSize{22, 14};
constexpr double swatchInset = 2;
/// "No Match" and the separator come before the keys.
constexpr std::size_t itemsAboveKeys = 2;

/// Returns the item above the names. It may get the names of close colours as its title.
HostMenuItem firstItem(const std::u16string& title)
{
    HostMenuItem item;
    item.title = title;
    item.isOwnWord = true;
    return item;
}

/// Returns the first index of each title, like `indexOfItemWithTitle`.
std::unordered_map<std::u16string, int> indexesOfTitles(const HostMenu& menu)
{
    std::unordered_map<std::u16string, int> indexes;
    indexes.reserve(menu.size());
    for (std::size_t i = 0; i < menu.size(); ++i) {
        if (!menu[i].separator) indexes.try_emplace(menu[i].title, static_cast<int>(i));
    }
    return indexes;
}

}  // namespace

HostImage swatchImage(const HostColor& color)
{
    return {swatchSize, [color](HostCanvas& canvas) {
                HostBezierPath path;
                path.appendBezierPathWithRect(insetRect({0, 0, swatchSize.width, swatchSize.height},
                                                        swatchInset, swatchInset));
                canvas.fill(path, color);
                path.setLineWidth(2);
                canvas.stroke(path, HostColor::whiteColor());
                path.setLineWidth(1);
                canvas.stroke(path, HostColor::blackColor());
            }};
}

std::optional<HostImage> menuImageWithColorList(const HostColorList& list,
                                                const std::u16string& colorName)
{
    const auto color = list.colorWithKey(colorName);
    if (!color) return std::nullopt;
    return swatchImage(*color);
}

ColorNameMatch matchColorName(const QTXHexColorSpec& color, const HostColorList& list,
                              const ColorListIndex& index)
{
    ColorNameMatch match;
    match.closePlaces = index.placesNear(color);
    const auto equal = std::find_if(
        match.closePlaces.begin(), match.closePlaces.end(),
        [&](std::size_t place) { return color.isEqualToColor(list.colorAtIndex(place)); });
    if (equal != match.closePlaces.end()) {
        match.exactPlace = *equal;
        match.closePlaces.clear();
    }
    return match;
}

std::u16string closeTitle(const std::vector<std::u16string>& closeKeys)
{
    if (closeKeys.empty()) return noMatchTitle;
    std::size_t length = 0;
    for (const std::u16string& key : closeKeys)
        length += 2 + key.size();
    std::u16string title;
    title.reserve(length);
    for (const std::u16string& key : closeKeys)
        title.append(title.empty() ? u"* " : u", ").append(key);
    return title;
}

bool ColorNamesPopUpFiller::isFilledWith(const HostColorList& list) const
{
    return &list == _filledWith.get() && list.revision() == _revision && _inListOrder;
}

void ColorNamesPopUpFiller::fill(HostPopUpButton& popUp, const std::shared_ptr<HostColorList>& list)
{
    if (list && isFilledWith(*list)) {
        popUp.setTitleOfItem(0, noMatchTitle);
        popUp.selectItemAtIndex(0);
        return;
    }
    _filledWith = list;
    HostMenu menu;
    if (!list) {
        menu.push_back(firstItem(u"Empty"));
        popUp.setItems(std::move(menu));
        return;
    }
    _revision = list->revision();
    _inListOrder = true;
    const auto& keys = list->allKeys();
    menu.reserve(itemsAboveKeys + keys.size());
    menu.push_back(firstItem(noMatchTitle));
    menu.push_back(HostMenuItem::separatorItem());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        HostMenuItem& item = menu.emplace_back();
        item.title = keys[i];
        if (list->hasColorAtIndex(i)) item.image = swatchImage(list->colorAtIndex(i));
    }
    popUp.setItems(std::move(menu));
}

void ColorNamesPopUpFiller::selectEntry(HostPopUpButton& popUp, const HostColorList& list,
                                        std::size_t place) const
{
    const std::u16string& key = list.allKeys()[place];
    // A search by title scans all items, which would be slow for a long list.
    if (isFilledWith(list) && key != popUp.menu().front().title) {
        popUp.selectItemAtIndex(static_cast<int>(itemsAboveKeys + place));
    } else {
        popUp.selectItemWithTitle(key);
    }
}

void ColorNamesPopUpFiller::moveCloseEntriesUp(HostPopUpButton& popUp, const HostColorList& list,
                                               const std::vector<std::u16string>& closeKeys)
{
    if (closeKeys.empty() || list.allKeys().empty()) return;
    const auto indexes = indexesOfTitles(popUp.menu());
    const auto firstKey = indexes.find(list.allKeys().front());
    if (firstKey == indexes.end() || firstKey->second == 0) return;
    std::vector<int> moving;
    for (const std::u16string& key : closeKeys) {
        const auto found = indexes.find(key);
        if (found != indexes.end() && found->second > firstKey->second) {
            moving.push_back(found->second);
        }
    }
    if (moving.empty()) return;
    popUp.moveItems(moving, firstKey->second - 1);
    _inListOrder = false;
}

}  // namespace vantorel
