#pragma once

#include "host/HostColorPicker.h"

#include <QString>

namespace vantorel {

/// Returns the short name of a form: "HEX", "HSL", "OKLCH", otherwise its name in the user's
/// language.
[[nodiscard]] QString shortFormName(const HostColorText& form);

/// Returns the short name of the form that a colour's text has by the look of it; empty if it is
/// not one of CSS.
[[nodiscard]] QString shortFormNameOfText(const QString& text);

/// Returns "oklch(62.3% 0.188 259.8)", rounded to what can be told apart by eye; empty for a
/// pattern.
[[nodiscard]] QString roundedOklchText(const HostColor& color);

}  // namespace vantorel
