#pragma once

#include <QIODevice>
#include <QImage>

namespace vantorel {

/// Paints an SVG drawing, with its longer side of 1024 pixels. The device must be open; it is read
/// from its beginning. Returns a null image if the drawing is damaged.
///
/// A drawing may name other files, which Qt would open: pictures that are nobody's business, or
/// pipes that never end. Such references are left out, and embedded pictures with them, because
/// these may be drawings again.
[[nodiscard]] QImage readSvgPicture(QIODevice& device);

}  // namespace vantorel
