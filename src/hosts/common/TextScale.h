#pragma once

namespace vantorel {

/// Returns the device-independent pixels per point of the core for a desktop's general font of this
/// height in device-independent pixels: 1, or more if the user has chosen larger text. Pages have
/// fixed layouts, so they are enlarged as a whole to avoid cutting texts. The scale is a multiple
/// of a quarter, so that most edges fall on whole pixels.
[[nodiscard]] double textScaleForFontHeight(double pixels);

/// Returns the size in pixels at which a text fits into `room`: a little smaller than `fullSize` if
/// that makes room for the whole text, else `fullSize`. `needed` is the text's width at the full
/// size. While the user types, use the full size.
[[nodiscard]] int fittedTextSize(int fullSize, double needed, double room);

}  // namespace vantorel
