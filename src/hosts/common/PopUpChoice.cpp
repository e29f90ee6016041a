#include "hosts/common/PopUpChoice.h"

#include <algorithm>

namespace vantorel {

bool canBeChosen(const HostMenuItem& item)
{
    return !item.separator && !item.submenu;
}

bool hasSubmenus(const HostMenu& menu)
{
    return std::any_of(menu.begin(), menu.end(),
                       [](const HostMenuItem& item) { return item.submenu != nullptr; });
}

void chooseItem(HostPopUpButton& popUp, int index)
{
    if (index < 0 || index >= popUp.numberOfItems()) return;
    // A copy, because the action may rebuild the menu.
    const HostMenuItem item = popUp.menu()[static_cast<std::size_t>(index)];
    if (!canBeChosen(item)) return;
    if (item.action) {
        item.action(item);
        return;
    }
    popUp.selectItemAtIndex(index);
    popUp.sendAction();
}

void chooseOpenedItem(HostPopUpButton& popUp, const HostMenuItem& item, int index)
{
    const bool unchanged = index >= 0 && index < popUp.numberOfItems() &&
                           popUp.menu()[static_cast<std::size_t>(index)].title == item.title;
    chooseItem(popUp, unchanged ? index : popUp.indexOfItemWithTitle(item.title));
}

void chooseNeighbour(HostPopUpButton& popUp, int step)
{
    const HostMenu& menu = popUp.menu();
    for (int i = popUp.indexOfSelectedItem() + step; i >= 0 && i < popUp.numberOfItems();
         i += step) {
        const HostMenuItem& item = menu[static_cast<std::size_t>(i)];
        if (!canBeChosen(item) || item.action) continue;
        chooseItem(popUp, i);
        return;
    }
}

}  // namespace vantorel
