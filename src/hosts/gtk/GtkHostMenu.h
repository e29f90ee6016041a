#pragma once

#include "host/HostMenu.h"
#include "hosts/gtk/GtkVersions.h"

#include <functional>

namespace vantorel {

/// Called when an item of the top level is selected, with the item and its index.
using GtkMenuChoice = std::function<void(const HostMenuItem& item, int index)>;

/// Opens a menu of items below a widget. The items of submenus are looked up when they open.
/// Letters go to the next item with this prefix. The item at `selected` is marked. The menu belongs
/// to the widget, and is destroyed after it has closed.
void openMenuBelow(GtkWidget* widget, const HostMenu& items, int selected,
                   const GtkMenuChoice& choose);

}  // namespace vantorel
