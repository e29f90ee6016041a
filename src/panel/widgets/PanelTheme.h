#pragma once

#include <QString>

namespace vantorel {

/// Gives the program the theme with this name; it can be changed while the program runs.
///
/// "light", "dark" and "contrast" are the panel's own. "auto" is light or dark as the desktop is,
/// and follows it from Qt 6.5 on. "desktop" is the desktop's own palette and style. Returns false
/// for any other name. Needs a QApplication.
bool applyTheme(const QString& name);

}  // namespace vantorel
