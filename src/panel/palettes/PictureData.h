#pragma once

#include <QImage>
#include <QMimeData>

namespace vantorel {

/// Whether what is dropped or pasted offers a picture.
[[nodiscard]] bool offersPicture(const QMimeData& data);

/// Returns the picture that is dropped or pasted; a null image if it cannot be read. Qt's own
/// conversion would take a drawing of another program as it is, and open the files that it names.
[[nodiscard]] QImage pictureIn(const QMimeData& data);

}  // namespace vantorel
