#pragma once

#include "host/HostCanvas.h"
#include "host/HostDesktop.h"

#include <string>

/// The images shown at the pointer during a drag.
namespace vantorel {

/// Returns an image of the text. A text longer than 20 characters and wider than 140 points is cut
/// to its first 20 characters and "...".
[[nodiscard]] HostImage stringDragImage(HostDesktop& desktop, const std::u16string& text);

/// Returns a swatch with a black and a white border, with `label` above it.
[[nodiscard]] HostImage colorDragImage(HostDesktop& desktop, const HostColor& color,
                                       const std::u16string& label);

}  // namespace vantorel
