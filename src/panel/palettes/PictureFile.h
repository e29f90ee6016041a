#pragma once

#include "result/Result.h"

#include <QIODevice>
#include <QImage>
#include <QString>

#include <string>

namespace vantorel {

/// Whether a file's first bytes are those of a picture that can be read.
[[nodiscard]] bool isPictureFile(const QString& path);

/// Reads a picture in any format of Qt's plug-ins, in sRGB. SVG pictures, which have no pixels of
/// their own, get a side of 1,024. Larger files than 256 MiB and pictures of more than 100
/// megapixels are rejected before they are decoded.
[[nodiscard]] Result<QImage> readPicture(const QString& path);
/// The same for a picture that is not in a file of its own. The device must be open, and of a kind
/// that can be read twice; messages call the picture `name`.
[[nodiscard]] Result<QImage> readPicture(QIODevice& device, const std::string& name);

/// The file dialogs' filter for pictures.
[[nodiscard]] QString pictureFilter();

}  // namespace vantorel
