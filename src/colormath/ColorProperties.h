#pragma once

#include "csscolor/CSSColorValue.h"

namespace vantorel {

/// The properties that colours can be sorted by. Hue, lightness and chroma are those of OkLCh.
enum class ColorProperty { hue, lightness, chroma, luminance };

/// Returns a property as a number. The hue of a grey is -1, less than any other. The luminance is
/// relative to white, and ignores the alpha.
[[nodiscard]] double propertyOf(const CSSColorValue& color, ColorProperty property);

}  // namespace vantorel
