#pragma once

#include "panel/PanelOptions.h"
#include "panel/window/PanelWindow.h"
#include "plugins/PluginLoader.h"

#include <string>

namespace vantorel {

/// "#rrggbbaa"
[[nodiscard]] QString cssNameOf(const QColor& color);

/// The panel's window with its plug-ins and desktop. Needs a QApplication.
class Panel {
public:
    /// Loads the plug-ins of the user, whose data folder is `userData`, of the system and of the
    /// options. Prints and shows problems.
    Panel(const PanelOptions& options, const std::string& userData);

    [[nodiscard]] PanelWindow& window() { return _window; }

    /// Applies the options. Returns false if no page has the key that they name; the other options
    /// are applied even then.
    bool apply(const PanelOptions& options);

private:
    void sendAction(const char* name);

    PluginSearch _search;
    QtDesktop _desktop;
    PanelWindow _window;
};

}  // namespace vantorel
