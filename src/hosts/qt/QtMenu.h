#pragma once

#include "host/HostMenu.h"

#include <QMenu>

#include <functional>

namespace vantorel {

/// What choosing an item of the top level does; it gets the item and its place.
using QtMenuChoice = std::function<void(const HostMenuItem& item, int index)>;

/// A menu of items that may have submenus, which are made when they open. Letters go to the next
/// item that begins so; a menu higher than the screen scrolls. The item at `selected` is marked.
/// The menu ends itself when it closes.
[[nodiscard]] QMenu* makeMenu(const HostMenu& items, int selected, QWidget& parent,
                              const QtMenuChoice& choose);

}  // namespace vantorel
