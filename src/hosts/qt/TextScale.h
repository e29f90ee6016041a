#pragma once

namespace vantorel {

/// Device-independent pixels a point of the core: 1, or more for a user who has chosen larger text
/// on the desktop. The pages have a layout of their own, with a place for every control; so that no
/// text is cut, they grow as a whole. Taken from the desktop's font when it is first asked for, and
/// the same until the program ends. Needs a QGuiApplication.
[[nodiscard]] double textScale();

/// So many points in whole device-independent pixels.
[[nodiscard]] int scaled(double points);

/// The scale for a general font of that height in device-independent pixels: in steps of a quarter,
/// so that edges fall on pixels more often than not.
[[nodiscard]] double textScaleForFontHeight(double pixels);

}  // namespace vantorel
