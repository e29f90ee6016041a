#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/common/TypeAhead.h"
#include "hosts/gtk/GtkHostView.h"
#include "hosts/gtk/GtkStyles.h"

#include <memory>

namespace vantorel {

/// A pop-up that looks like a combo box. It opens a menu, or a list if it has more items than a
/// menu opens at once; either is created when it opens. Keyboard: Space, Return or Alt+Down opens
/// it, Up and Down select the neighbour, letters select the next item with this prefix.
class GtkHostPopUpButton final : public GtkMirrored<HostPopUpButton> {
public:
    explicit GtkHostPopUpButton(const HostControlDescription& description);

    /// Sends the notice, builds the menu and opens it.
    void openMenu();

protected:
    void menuDidChange() override;

private:
    void paint(cairo_t* cairo);
    bool takeKey(const GdkEventKey& event);
    [[nodiscard]] std::u16string selectedTitle() const;

    GtkControlStyle _style;
    GtkWeakWidget _area;
    TypeAhead _typeAhead;
    std::string _reportedTitle;
    double _points;
    /// Expires when the view is destroyed: the open menu goes a little later.
    std::shared_ptr<const bool> _life = std::make_shared<bool>(true);
};

}  // namespace vantorel
