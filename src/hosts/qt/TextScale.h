#pragma once

namespace vantorel {

/// Device-independent pixels per point of the core: 1, or more if the user has chosen larger text
/// on the desktop. Pages have fixed layouts, so they are enlarged as a whole to avoid cutting
/// texts. The value is derived from the desktop's font at the first call and then never changes.
/// Needs a QGuiApplication.
[[nodiscard]] double textScale();

/// Converts points to whole device-independent pixels.
[[nodiscard]] int scaled(double points);

/// The scale for a general font of this height in device-independent pixels. It is a multiple of a
/// quarter, so that most edges fall on whole pixels.
[[nodiscard]] double textScaleForFontHeight(double pixels);

}  // namespace vantorel
