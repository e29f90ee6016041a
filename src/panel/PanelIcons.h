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

}  // namespace vantorel
