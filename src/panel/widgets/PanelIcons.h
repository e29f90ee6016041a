#pragma once

#include <QIcon>

/// The panel's own pictures, drawn afresh in the theme's text colour for every size.
namespace vantorel {

[[nodiscard]] QIcon swapIcon();
[[nodiscard]] QIcon pickIcon();
[[nodiscard]] QIcon copyIcon();
[[nodiscard]] QIcon menuIcon();
[[nodiscard]] QIcon dialogPageIcon();
[[nodiscard]] QIcon palettesPageIcon();

// Of the palettes' page.

[[nodiscard]] QIcon addIcon();
[[nodiscard]] QIcon removeIcon();
[[nodiscard]] QIcon recolorIcon();
[[nodiscard]] QIcon undoIcon();
[[nodiscard]] QIcon redoIcon();
[[nodiscard]] QIcon moreIcon();
[[nodiscard]] QIcon lockIcon();

}  // namespace vantorel
