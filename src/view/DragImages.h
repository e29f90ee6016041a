#pragma once

#include "host/HostCanvas.h"
#include "host/HostDesktop.h"

#include <string>

/// What hangs at the pointer during a drag.
namespace vantorel {

/// The text itself, cut to its first 20 characters with "..." when it is both longer than that and
/// wider than 140 points.
[[nodiscard]] HostImage stringDragImage(HostDesktop& desktop, const std::u16string& text);

/// A swatch with a black and a white rim, and `label` above it.
[[nodiscard]] HostImage colorDragImage(HostDesktop& desktop, const HostColor& color,
                                       const std::u16string& label);

}  // namespace vantorel
