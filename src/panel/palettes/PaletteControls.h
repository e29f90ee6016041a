#pragma once

#include <QLabel>
#include <QToolButton>

/// Labels and buttons in the style of the Palettes page.
namespace vantorel::palettecontrols {

/// At both sides of the page, in points.
inline constexpr int pageMargin = 10;

/// A label in small, faint letters. `name` is its object name.
[[nodiscard]] QLabel* newLabel(QWidget* parent, const char* name);
[[nodiscard]] QToolButton* newButton(QWidget* parent);
/// A button that shows the icon of an action.
[[nodiscard]] QToolButton* newButton(QWidget* parent, QAction* action);

}  // namespace vantorel::palettecontrols
