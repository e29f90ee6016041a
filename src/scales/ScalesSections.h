#pragma once

#include "scales/ScalesSection.h"

#include <memory>

/// The sections of the page. `page` must outlive them.
namespace vantorel {

/// A scale of 50 to 950, tints, shades and tones.
[[nodiscard]] std::unique_ptr<ScalesSection> makeScaleSection(ScalesPage& page);
/// Colours of other hues.
[[nodiscard]] std::unique_ptr<ScalesSection> makeSchemesSection(ScalesPage& page);
/// Steps from the colour to another one.
[[nodiscard]] std::unique_ptr<ScalesSection> makeGradientSection(ScalesPage& page);
/// How well the colour is seen on others, and the nearest colours that are seen well.
[[nodiscard]] std::unique_ptr<ScalesSection> makeContrastSection(ScalesPage& page);
/// The scale as people see it who do not see all colours.
[[nodiscard]] std::unique_ptr<ScalesSection> makeVisionSection(ScalesPage& page);

}  // namespace vantorel
