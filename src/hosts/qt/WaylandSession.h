#pragma once

namespace vantorel {

/// Whether the program's windows belong to a Wayland compositor.
[[nodiscard]] bool isWaylandSession();

}  // namespace vantorel
