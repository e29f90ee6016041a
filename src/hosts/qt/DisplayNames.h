#pragma once

#include "host/HostColorPicker.h"
#include "host/HostControls.h"
#include "host/HostText.h"

#include <QString>

namespace vantorel {

/// Texts of pickers as the user sees them. Pickers select menu items by their titles and store them
/// in files, so these keep their English names everywhere else. Only a picker's own words are
/// translated: a list of the user's that is called "Color" keeps its name.
[[nodiscard]] QString shownTitle(const HostMenuItem& item);
/// Empty if no item is selected.
[[nodiscard]] QString shownTitleOfSelectedItem(const HostPopUpButton& popUp);
[[nodiscard]] QString shownText(const HostText& text);
[[nodiscard]] QString shownName(const HostColorText& text);

}  // namespace vantorel
