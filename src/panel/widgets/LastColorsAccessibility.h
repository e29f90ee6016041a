#pragma once

namespace vantorel {

/// Has the last colours shown to assistive technology: a list with an item for each colour, which
/// can be pressed, and the button of the menu. Call it before a row gets its name, because Qt keeps
/// the interface that it gives to a widget with one.
void installLastColorsInterface();

}  // namespace vantorel
