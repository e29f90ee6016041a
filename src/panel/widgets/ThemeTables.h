#pragma once

#include "panel/widgets/ThemeColors.h"

/// The panel's own themes.
namespace vantorel {

[[nodiscard]] const ThemeColors& lightTheme();
[[nodiscard]] const ThemeColors& darkTheme();
[[nodiscard]] const ThemeColors& contrastTheme();

/// Returns the palette for one of these themes. `themeColors` recognises it.
[[nodiscard]] QPalette paletteOf(const ThemeColors& theme);

/// Returns the theme that a palette was made from by `paletteOf`, or null. A widget's palette
/// counts even if the widget has its own text colour.
[[nodiscard]] const ThemeColors* themeOf(const QPalette& palette);

}  // namespace vantorel
