#include "panel/palettes/PictureData.h"

#include "panel/palettes/PictureFile.h"

#include <QBuffer>
#include <QStringList>

namespace vantorel {
namespace {

/// The formats in which other programs offer a picture: the one that keeps every pixel first.
QStringList pictureFormats(const QMimeData& data)
{
    QStringList formats = data.formats().filter(QStringLiteral("image/"));
    const qsizetype best = formats.indexOf(QStringLiteral("image/png"));
    if (best > 0) formats.move(best, 0);
    return formats;
}

}  // namespace

bool offersPicture(const QMimeData& data)
{
    return data.hasImage() || !pictureFormats(data).isEmpty();
}

QImage pictureIn(const QMimeData& data)
{
    const QStringList formats = pictureFormats(data);
    for (const QString& format : formats) {
        QByteArray bytes = data.data(format);
        QBuffer buffer(&bytes);
        if (bytes.isEmpty() || !buffer.open(QIODevice::ReadOnly)) continue;
        if (Result<QImage> picture = readPicture(buffer, {})) return *std::move(picture);
    }
    // This program's own pictures need no format.
    return formats.isEmpty() ? data.imageData().value<QImage>() : QImage();
}

}  // namespace vantorel
