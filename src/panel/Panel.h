#pragma once

#include "panel/PanelOptions.h"
#include "panel/window/PanelWindow.h"
#include "plugins/PluginLoader.h"

#include <string>

namespace vantorel {

/// "#rrggbbaa"
[[nodiscard]] QString cssNameOf(const QColor& color);

/// The panel's window, with the plug-ins and the desktop that it needs. Needs an application.
class Panel {
public:
    /// Loads the plug-ins of the user, whose data is in `userData`, of the system and of the
    /// options. Prints and shows what goes wrong.
    Panel(const PanelOptions& options, const std::string& userData);

    [[nodiscard]] PanelWindow& window() { return _window; }

    /// Makes the panel what the options say. Returns false, after the rest is done, if there is no
    /// page of the key that they name.
    bool apply(const PanelOptions& options);

private:
    void sendAction(const char* name);

    PluginSearch _search;
    QtDesktop _desktop;
    PanelWindow _window;
};

}  // namespace vantorel
