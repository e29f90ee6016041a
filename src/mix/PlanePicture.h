#pragma once

#include "colormath/ColorPlane.h"
#include "pageparts/PixelPainting.h"

namespace vantorel {

/// Returns the picture of a plane with the borders of sRGB and Display P3. Colours between them are
/// hatched; beyond Display P3 there is only hatched ground.
[[nodiscard]] HostPixels planePicture(const ColorPlane& plane, HostPixelSize size,
                                      const PixelLook& look);

}  // namespace vantorel
