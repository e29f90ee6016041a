#pragma once

#include <QString>

namespace vantorel {

/// Gives the program the palette "light" or "dark" in place of the desktop's. Returns false for any
/// other name.
bool applyTheme(const QString& name);

}  // namespace vantorel
