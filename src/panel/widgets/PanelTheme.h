#pragma once

#include <QString>

namespace vantorel {

/// Gives the program a light or a dark palette in place of the desktop's. False for another name.
bool applyTheme(const QString& name);

}  // namespace vantorel
