#pragma once

#include "host/HostCanvas.h"
#include "host/HostEvent.h"

namespace vantorel {

/// Where the keyboard focus of a hand-painted view came from.
enum class FocusOrigin {
    mouse,
    keys,
    /// The window or a menu has given the focus back.
    returned,
};

/// Whether a hand-painted view marks its focus and the cell that the keys have reached. After a
/// click the user knows where the focus is; the marks would only hide colours.
class FocusMarks {
public:
    [[nodiscard]] bool areShown() const { return _areShown; }

    void focusCame(FocusOrigin origin)
    {
        if (origin != FocusOrigin::returned) _areShown = origin == FocusOrigin::keys;
    }
    void buttonWasPressed() { _areShown = false; }
    void keyWasUsed() { _areShown = true; }

    /// Whether a key is for the view. While no cell is marked, Return ends the dialog that the
    /// page is in.
    [[nodiscard]] bool offers(const HostKeyEvent& key) const
    {
        return key.key != HostKey::pick || _areShown;
    }

private:
    bool _areShown = false;
};

/// Strokes the outline of a cell so that it is visible on every colour.
void strokeOnAnyColor(HostCanvas& canvas, HostBezierPath path);

}  // namespace vantorel
