#pragma once

#include "host/HostColor.h"

#include <functional>
#include <optional>

namespace vantorel {

/// Returns the contrast that a colour has where it is used.
using ContrastOf = std::function<double(const HostColor& color)>;

/// Returns the colour of the nearest lightness in OkLCh whose contrast is at least `least`, mapped
/// into sRGB and rounded to bytes. Its hue, its alpha and, within sRGB, its chroma stay. A colour
/// with enough contrast is returned unchanged. Returns `std::nullopt` if no lightness is enough,
/// and for a pattern.
[[nodiscard]] std::optional<HostColor> nearestReadableColor(const HostColor& color, double least,
                                                            const ContrastOf& contrastOf);

}  // namespace vantorel
