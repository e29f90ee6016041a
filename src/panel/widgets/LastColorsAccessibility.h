#pragma once

namespace vantorel {

class LastColors;

/// Shows the last colours to assistive technology: a list with an item for each colour, which can
/// be pressed and pinned, and the button of the menu.
void makeLastColorsAccessible(LastColors& widget);

}  // namespace vantorel
