#pragma once

#include <QImage>
#include <QString>

namespace vantorel {

/// Paints the drawing of an SVG file, with its longer side of 1024 pixels. Returns a null image if
/// the file is damaged.
///
/// A drawing may name other files, which Qt would open: pictures that are nobody's business, or
/// pipes that never end. Such references are left out, and embedded pictures with them, because
/// these may be drawings again.
[[nodiscard]] QImage readSvgPicture(const QString& path);

}  // namespace vantorel
