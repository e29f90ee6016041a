#pragma once

namespace vantorel {

/// Device-independent pixels per point of the core (see `textScaleForFontHeight`). The value is
/// derived from the desktop's font at the first call and then never changes. Needs a
/// QGuiApplication.
[[nodiscard]] double textScale();

/// Converts points to whole device-independent pixels.
[[nodiscard]] int scaled(double points);

}  // namespace vantorel
