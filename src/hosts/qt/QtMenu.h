#pragma once

#include "host/HostMenu.h"

#include <QMenu>

#include <functional>

namespace vantorel {

/// Called when an item of the top level is selected, with the item and its index.
using QtMenuChoice = std::function<void(const HostMenuItem& item, int index)>;

/// Creates a menu of items. Submenus are created when they open. Letters go to the next item with
/// this prefix; a menu higher than the screen scrolls. The item at `selected` is marked. The menu
/// deletes itself when it closes.
[[nodiscard]] QMenu* makeMenu(const HostMenu& items, int selected, QWidget& parent,
                              const QtMenuChoice& choose);

}  // namespace vantorel
