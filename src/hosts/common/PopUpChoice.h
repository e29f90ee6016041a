#pragma once

#include "host/HostControls.h"

/// Choosing in a pop-up: the rules that are the same in a menu, in a list and by keyboard.
namespace vantorel {

/// Whether the user can choose an item: a separator or the parent of a submenu cannot be chosen.
[[nodiscard]] bool canBeChosen(const HostMenuItem& item);
/// Whether a menu must open as a menu. Without submenus a list will do, which opens a menu of
/// thousands of items at once.
[[nodiscard]] bool hasSubmenus(const HostMenu& menu);

/// Chooses an item of the top level, as the user would: runs the item's own action, or selects the
/// item and sends the pop-up's action. Has no effect if the item cannot be chosen.
void chooseItem(HostPopUpButton& popUp, int index);
/// Chooses an item that was at `index` when the menu was opened. If the items have changed since,
/// the one with the same title is chosen.
void chooseOpenedItem(HostPopUpButton& popUp, const HostMenuItem& item, int index);
/// Chooses the item before (`step` -1) or after (1) the selected one. Separators, submenus and
/// items with an action of their own are skipped: stepping through a pop-up only selects. Has no
/// effect at the ends.
void chooseNeighbour(HostPopUpButton& popUp, int step);

}  // namespace vantorel
