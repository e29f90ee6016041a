#pragma once

#include <QIcon>

/// The panel's own icons, rendered in the theme's text colour for each size.
namespace vantorel {

[[nodiscard]] QIcon swapIcon();
[[nodiscard]] QIcon pickIcon();
[[nodiscard]] QIcon copyIcon();
[[nodiscard]] QIcon menuIcon();
[[nodiscard]] QIcon dialogPageIcon();
[[nodiscard]] QIcon palettesPageIcon();

// Icons of the Palettes page.

[[nodiscard]] QIcon addIcon();
[[nodiscard]] QIcon removeIcon();
[[nodiscard]] QIcon recolorIcon();
[[nodiscard]] QIcon undoIcon();
[[nodiscard]] QIcon redoIcon();
[[nodiscard]] QIcon moreIcon();
[[nodiscard]] QIcon lockIcon();

}  // namespace vantorel
