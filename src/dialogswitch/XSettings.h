#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Whether the desktop's XSETTINGS manager sets a value (XSETTINGS of freedesktop), such as
/// "Gtk/Modules". False without an X server. GTK prefers these values to those in its settings.ini.
[[nodiscard]] bool desktopSetsXSetting(std::string_view name);

/// Whether a property _XSETTINGS_SETTINGS has a setting of that name. Broken properties have none.
[[nodiscard]] bool hasXSetting(std::string_view property, std::string_view name);

}  // namespace vantorel
