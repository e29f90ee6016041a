#pragma once

#include "host/HostCanvas.h"
#include "host/HostPasteboard.h"
#include "hosts/gtk/GtkReferences.h"

#include <array>
#include <optional>

namespace vantorel {

/// The eight bytes of `application/x-color`: red, green, blue and opacity in 16 bits each. Returns
/// `std::nullopt` for a colour without components, which has no form that other programs could
/// read.
[[nodiscard]] std::optional<std::array<guint16, 4>> colorWords(const HostColor& color);

/// Runs a drag out of a widget that begins with `event`, until it has ended. It offers a single
/// type: a colour as `application/x-color`, a text as UTF-8. The image is to the upper right of the
/// pointer.
void runDrag(GtkWidget* source, GdkEvent* event, const HostImage& image,
             const HostPasteboardItem& item);

}  // namespace vantorel
