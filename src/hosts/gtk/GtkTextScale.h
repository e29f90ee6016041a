#pragma once

namespace vantorel {

/// Pixels of GTK per point of the core (see hosts/common/TextScale.h). The value is derived from
/// the desktop's font at the first call and then never changes. GTK must have a display.
[[nodiscard]] double gtkTextScale();

}  // namespace vantorel
