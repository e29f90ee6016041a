#pragma once

#include "host/HostColorPanel.h"
#include "host/HostMenu.h"
#include "listformats/SeriesTexts.h"

#include <functional>
#include <string>
#include <vector>

namespace vantorel {

/// Colours that are copied together.
struct CopiedSeries {
    /// What the user calls them, such as "Tints".
    std::u16string title;
    /// The name of the colour, and what follows it for each of the colours.
    std::function<ColorSeries()> colors;
};

/// Returns the menu of a pop-up that copies series of colours as texts and keeps them as colour
/// lists. Its first item is the pop-up's title. The items of the series that `comesFirst` are in
/// the menu itself, and all others in submenus. `panel` must outlive the menu.
[[nodiscard]] HostMenu copyMenu(HostColorPanel& panel, std::vector<CopiedSeries> series,
                                bool comesFirst);

/// Saves a series as one of the user's colour lists, under a name that no other list has, and
/// reports it.
void keepAsList(HostColorPanel& panel, const std::u16string& title, const ColorSeries& series);

}  // namespace vantorel
