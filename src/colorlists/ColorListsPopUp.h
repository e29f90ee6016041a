#pragma once

#include "host/HostColorList.h"
#include "host/HostControls.h"

#include <functional>
#include <string>
#include <vector>

/// The pop-up that offers the active colour lists, with submenus to add and remove one.
namespace vantorel {

/// What choosing in the submenus does; each gets the item's title.
struct ColorListsPopUpActions {
    std::function<void(const std::u16string& title)> add;
    std::function<void(const std::u16string& title)> remove;
};

/// Whether the list of that name is installed, has a colour, and has no pattern among its colours.
[[nodiscard]] bool allColorsAreSolid(HostColorListStore& store, const std::u16string& name);

/// Fills the pop-up anew: the active lists, whether or not they are installed; a separator;
/// "Remove" when two or more are active; "Add" with the other installed lists of solid colours, as
/// they are when the submenu is looked at. `store` must outlive the pop-up's items.
void buildColorListsPopUp(HostPopUpButton& popUp, const std::vector<std::u16string>& activeLists,
                          HostColorListStore& store, const ColorListsPopUpActions& actions);

/// The naming list after `removed` has left the active lists, where it was the naming list itself:
/// "CSS Keyword" while it is still active, else the first that is left. At least one must be left.
[[nodiscard]] std::u16string namingListAfterRemoval(const std::u16string& removed,
                                                    const std::vector<std::u16string>& activeLists);

}  // namespace vantorel
