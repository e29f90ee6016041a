#pragma once

#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtView.h"

namespace vantorel {

/// A pop-up that looks like a combo box. It opens a list, or a menu where items have submenus,
/// which is made when it opens. Keyboard: Space, Return or Alt+Down opens it, Up and Down choose
/// the neighbour, letters choose the next item that begins so.
class QtPopUpButton final : public QtMirrored<HostPopUpButton> {
public:
    explicit QtPopUpButton(const HostControlDescription& description);

    /// Sends the notice, builds the menu and opens it.
    void openMenu();
    /// Chooses an item of the top level as the user does.
    void chooseItem(int index);

protected:
    void menuDidChange() override;

private:
    class Widget;

    void chooseOpened(const HostMenuItem& item, int index);
};

}  // namespace vantorel
