#pragma once

#include "host/HostCanvas.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

struct HostMenuItem;
using HostMenu = std::vector<HostMenuItem>;

/// A menu item: a separator, the parent of a submenu, or an item that the user can choose.
struct HostMenuItem {
    std::u16string title;
    bool separator = false;
    std::optional<HostImage> image;
    /// Set for a submenu's parent only. Called whenever the submenu's items are needed, so that
    /// items that are expensive to find are looked up only when the user opens the submenu. It may
    /// return an empty menu.
    std::function<HostMenu()> submenu;
    /// Called when the user chooses the item. If empty, the pop-up that contains the item selects
    /// it and sends the pop-up's action.
    std::function<void(const HostMenuItem&)> action;
    /// Whether the title is the page's own word, such as "Add", which desktops show in the user's
    /// language. Names of colours and lists belong to the user and are shown unchanged.
    bool isOwnWord = false;

    [[nodiscard]] static HostMenuItem separatorItem()
    {
        HostMenuItem item;
        item.separator = true;
        return item;
    }
};

}  // namespace vantorel
