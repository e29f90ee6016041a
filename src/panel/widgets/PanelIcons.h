#pragma once

#include <QIcon>

/// The panel's own icons, rendered in the theme's text colour for each size. They have no colours
/// of their own and no fill, and their lines lie on the middle of pixels of 16 by 16.
namespace vantorel {

[[nodiscard]] QIcon swapIcon();
[[nodiscard]] QIcon pickIcon();
[[nodiscard]] QIcon copyIcon();
[[nodiscard]] QIcon menuIcon();
[[nodiscard]] QIcon moreIcon();
[[nodiscard]] QIcon downIcon();
[[nodiscard]] QIcon upIcon();
[[nodiscard]] QIcon rightIcon();
[[nodiscard]] QIcon settingsIcon();
/// These two in the text colour of buttons on `ground`.
[[nodiscard]] QIcon tickIcon(const QWidget* ground = nullptr);
[[nodiscard]] QIcon warnIcon(const QWidget* ground = nullptr);
[[nodiscard]] QIcon pinIcon();
[[nodiscard]] QIcon gripIcon();
[[nodiscard]] QIcon closeIcon();
[[nodiscard]] QIcon helpIcon();

// Pages and their views.

[[nodiscard]] QIcon hexPageIcon();
[[nodiscard]] QIcon mixPageIcon();
[[nodiscard]] QIcon scalesPageIcon();
/// A list; lists of colours have a page of their own.
[[nodiscard]] QIcon palettesPageIcon();
[[nodiscard]] QIcon sliderIcon();
[[nodiscard]] QIcon gridIcon();
[[nodiscard]] QIcon wheelIcon();
[[nodiscard]] QIcon listIcon();

// Lists of colours.

[[nodiscard]] QIcon addIcon();
[[nodiscard]] QIcon removeIcon();
[[nodiscard]] QIcon recolorIcon();
[[nodiscard]] QIcon undoIcon();
[[nodiscard]] QIcon redoIcon();
[[nodiscard]] QIcon lockIcon();
[[nodiscard]] QIcon nameIcon();

}  // namespace vantorel
