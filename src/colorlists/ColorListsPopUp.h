#pragma once

#include "host/HostColorList.h"
#include "host/HostControls.h"

#include <functional>
#include <string>
#include <vector>

/// The pop-up menu of the active colour lists, with submenus that add and remove lists.
namespace vantorel {

/// The actions of the submenus. Each is called with the title of the chosen item.
struct ColorListsPopUpActions {
    std::function<void(const std::u16string& title)> add;
    std::function<void(const std::u16string& title)> remove;
};

/// Returns whether the list of that name is installed, is not empty, and contains no patterns.
[[nodiscard]] bool allColorsAreSolid(HostColorListStore& store, const std::u16string& name);

/// Fills the pop-up with the active lists, installed or not; a separator; "Remove" if two or more
/// lists are active; and "Add" with the other installed lists of solid colours, which are looked up
/// when the submenu opens. `store` must outlive the pop-up's items.
void buildColorListsPopUp(HostPopUpButton& popUp, const std::vector<std::u16string>& activeLists,
                          HostColorListStore& store, const ColorListsPopUpActions& actions);

/// Returns the new naming list after the naming list `removed` has been removed from the active
/// lists: "CSS Keyword" if it is still active, else the first active list. `activeLists` must not
/// be empty.
[[nodiscard]] std::u16string namingListAfterRemoval(const std::u16string& removed,
                                                    const std::vector<std::u16string>& activeLists);

}  // namespace vantorel
