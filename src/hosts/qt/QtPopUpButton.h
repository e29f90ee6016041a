#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtView.h"

namespace vantorel {

/// A pop-up that looks like a combo box. It opens a list, or a menu if items have submenus; either
/// is created when it opens. Keyboard: Space, Return or Alt+Down opens it, Up and Down select the
/// neighbour, letters select the next item with this prefix.
class QtPopUpButton final : public QtMirrored<HostPopUpButton> {
public:
    explicit QtPopUpButton(const HostControlDescription& description);

    /// Sends the notice, builds the menu and opens it.
    void openMenu();

protected:
    void menuDidChange() override;

private:
    class Widget;

    /// The open menu or list, which goes with the button.
    QPointer<QWidget> _opened;
};

}  // namespace vantorel
