#pragma once

namespace vantorel {

/// Device-independent pixels per point of the core (see `textScaleForFontHeight`). The value is
/// derived from the desktop's font at the first call and then never changes. Needs a
/// QGuiApplication.
[[nodiscard]] double textScale();

/// Enlarges pages and the program's font by this factor, on top of what the desktop asks for. Call
/// it before the first call of `textScale` and before the first window. Needs a QApplication.
void enlargeText(double factor);

/// Converts points to whole device-independent pixels.
[[nodiscard]] int scaled(double points);

}  // namespace vantorel
