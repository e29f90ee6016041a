#pragma once

#include "host/HostCanvas.h"

namespace vantorel {

/// The colours that every toolkit's theme has.
struct ThemeBasis {
    HostColor window = HostColor::whiteColor();
    HostColor base = HostColor::whiteColor();
    HostColor text = HostColor::blackColor();
    HostColor accent = HostColor::blackColor();

    bool operator==(const ThemeBasis&) const = default;
};

/// Returns a colour of a theme. What themes do not have is mixed from text and window, with as much
/// text as the contrasts of `HostThemeColor` need. If even the text does not reach them, it is the
/// text.
[[nodiscard]] HostColor themeColorOf(const ThemeBasis& basis, HostThemeColor kind);

}  // namespace vantorel
