#pragma once

#include <Qt>

namespace vantorel {

/// Whether a widget with the keyboard focus shows it. A click moves the focus, too, but only who
/// types needs to see it.
class FocusVisibility {
public:
    [[nodiscard]] bool isShown() const { return _isShown; }

    void focusIn(Qt::FocusReason reason)
    {
        // The window, or a menu of the widget, has come back: all is as before.
        if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) {
            _isShown = _wasShown;
        } else {
            _isShown = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                       reason == Qt::ShortcutFocusReason;
        }
    }
    void focusOut()
    {
        _wasShown = _isShown;
        _isShown = false;
    }
    void keyPressed() { _isShown = true; }

private:
    bool _isShown = false;
    bool _wasShown = false;
};

}  // namespace vantorel
