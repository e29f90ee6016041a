#pragma once

#include "host/HostCanvas.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

struct HostMenuItem;
using HostMenu = std::vector<HostMenuItem>;

/// An entry of a menu: a separator, the parent of a submenu, or an item to choose.
struct HostMenuItem {
    std::u16string title;
    bool separator = false;
    std::optional<HostImage> image;
    /// Only a parent has one. It makes the items of the submenu, each time that they are looked at:
    /// what costs something to find out is found out when the user opens it. There may be none.
    std::function<HostMenu()> submenu;
    /// What choosing it does. Without one, the pop-up that holds it selects it and sends its
    /// action.
    std::function<void(const HostMenuItem&)> action;

    [[nodiscard]] static HostMenuItem separatorItem()
    {
        HostMenuItem item;
        item.separator = true;
        return item;
    }
};

}  // namespace vantorel
