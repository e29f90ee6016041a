#include "colorlists/ColorListsPopUp.h"

#include "colorlists/QTXHexColorLists.h"

#include <algorithm>

namespace vantorel {
namespace {

bool contains(const std::vector<std::u16string>& names, const std::u16string& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

HostMenuItem itemWithAction(const std::u16string& title,
                            const std::function<void(const std::u16string&)>& action)
{
    HostMenuItem item;
    item.title = title;
    item.action = [action](const HostMenuItem& chosen) {
        // Copied, because the action rebuilds the menu that contains this item.
        const auto run = action;
        const std::u16string chosenTitle = chosen.title;
        run(chosenTitle);
    };
    return item;
}

HostMenuItem parentItem(const char16_t* title, std::function<HostMenu()> submenu)
{
    HostMenuItem item;
    item.title = title;
    item.isOwnWord = true;
    item.submenu = std::move(submenu);
    return item;
}

}  // namespace

bool allColorsAreSolid(HostColorListStore& store, const std::u16string& name)
{
    if (name.empty()) return false;
    const auto list = store.colorListNamed(name);
    if (!list || list->allKeys().empty()) return false;
    for (std::size_t i = 0; i < list->allKeys().size(); ++i) {
        if (list->hasColorAtIndex(i) && list->colorAtIndex(i).isPattern()) return false;
    }
    return true;
}

void buildColorListsPopUp(HostPopUpButton& popUp, const std::vector<std::u16string>& activeLists,
                          HostColorListStore& store, const ColorListsPopUpActions& actions)
{
    popUp.removeAllItems();
    popUp.addItemsWithTitles(activeLists);
    popUp.addItem(HostMenuItem::separatorItem());
    const auto removeMenu = [activeLists, remove = actions.remove] {
        HostMenu menu;
        for (const std::u16string& name : activeLists)
            menu.push_back(itemWithAction(name, remove));
        return menu;
    };
    if (activeLists.size() >= 2) popUp.addItem(parentItem(u"Remove", removeMenu));
    // Built when the submenu opens, because every installed list must be read to find the ones to
    // offer.
    const auto addMenu = [activeLists, &store, add = actions.add] {
        HostMenu menu;
        for (const std::u16string& name : store.availableColorLists()) {
            if (contains(activeLists, name) || !allColorsAreSolid(store, name)) continue;
            menu.push_back(itemWithAction(name, add));
        }
        return menu;
    };
    popUp.addItem(parentItem(u"Add", addMenu));
}

std::u16string namingListAfterRemoval(const std::u16string& removed,
                                      const std::vector<std::u16string>& activeLists)
{
    std::u16string fallback = nameFromHexColorList(BuiltInList::cssKeyword).value_or(u"");
    if (removed != fallback && contains(activeLists, fallback)) return fallback;
    return activeLists.front();
}

}  // namespace vantorel
