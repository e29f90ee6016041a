#include "host/HostControls.h"

#include <algorithm>

namespace vantorel {

void HostPopUpButton::removeAllItems()
{
    _menu.clear();
    _selected = noItem;
    menuDidChange();
}

void HostPopUpButton::setItems(HostMenu items)
{
    _menu = std::move(items);
    _selected = _menu.empty() ? noItem : 0;
    menuDidChange();
}

void HostPopUpButton::addItem(HostMenuItem item)
{
    insertItem(std::move(item), numberOfItems());
}

void HostPopUpButton::addItemWithTitle(const std::u16string& title)
{
    HostMenuItem item;
    item.title = title;
    addItem(std::move(item));
}

void HostPopUpButton::addItemsWithTitles(const std::vector<std::u16string>& titles)
{
    for (const std::u16string& title : titles)
        addItemWithTitle(title);
}

void HostPopUpButton::insertItem(HostMenuItem item, int index)
{
    const bool wasEmpty = _menu.empty();
    index = std::clamp(index, 0, numberOfItems());
    _menu.insert(_menu.begin() + index, std::move(item));
    if (wasEmpty) {
        _selected = 0;
    } else if (_selected >= index) {
        ++_selected;
    }
    menuDidChange();
}

void HostPopUpButton::setTitleOfItem(int index, const std::u16string& title)
{
    if (!isItem(index)) return;
    _menu[static_cast<std::size_t>(index)].title = title;
    menuDidChange();
}

void HostPopUpButton::moveItems(const std::vector<int>& indexes, int to)
{
    std::vector<bool> moves(_menu.size());
    for (const int index : indexes)
        moves[static_cast<std::size_t>(index)] = true;
    // The old indexes of the items, in the new order.
    std::vector<int> order;
    order.reserve(_menu.size());
    for (int index = 0; index < numberOfItems(); ++index) {
        if (index == to) order.insert(order.end(), indexes.begin(), indexes.end());
        if (!moves[static_cast<std::size_t>(index)]) order.push_back(index);
    }
    if (to >= numberOfItems()) order.insert(order.end(), indexes.begin(), indexes.end());

    HostMenu menu;
    menu.reserve(_menu.size());
    for (const int index : order)
        menu.push_back(std::move(_menu[static_cast<std::size_t>(index)]));
    _menu = std::move(menu);
    if (_selected != noItem) {
        const auto found = std::find(order.begin(), order.end(), _selected);
        _selected = static_cast<int>(found - order.begin());
    }
    menuDidChange();
}

int HostPopUpButton::indexOfItemWithTitle(const std::u16string& title) const
{
    const auto found = std::find_if(_menu.begin(), _menu.end(), [&](const HostMenuItem& item) {
        return !item.separator && item.title == title;
    });
    return found == _menu.end() ? noItem : static_cast<int>(found - _menu.begin());
}

void HostPopUpButton::selectItemAtIndex(int index)
{
    const int selected = isItem(index) ? index : noItem;
    if (selected == _selected) return;
    _selected = selected;
    menuDidChange();
}

void HostPopUpButton::selectItemWithTitle(const std::u16string& title)
{
    selectItemAtIndex(indexOfItemWithTitle(title));
}

std::optional<std::u16string> HostPopUpButton::titleOfSelectedItem() const
{
    if (!isItem(_selected)) return std::nullopt;
    return _menu[static_cast<std::size_t>(_selected)].title;
}

}  // namespace vantorel
