#pragma once

#include "host/HostColor.h"

namespace vantorel {

/// Returns how light a colour is, 0..1 (the L of HSL). A pattern counts as white.
[[nodiscard]] double lightnessOf(const HostColor& color);
/// Whether text must be light on a ground of this colour.
[[nodiscard]] bool isDarkGround(const HostColor& ground);
/// Returns a text colour of a page for a ground: black becomes `usualText`, the toolkit's text
/// colour on this ground, and colours too dark for a dark ground are lightened.
[[nodiscard]] HostColor readableTextColor(const HostColor& color, const HostColor& ground,
                                          const HostColor& usualText);

}  // namespace vantorel
