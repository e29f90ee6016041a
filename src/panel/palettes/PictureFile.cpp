#include "panel/palettes/PictureFile.h"

#include "panel/palettes/SvgPicture.h"
#include "result/HarmlessLine.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

namespace vantorel {
namespace {

constexpr qint64 largestPictureFile = qint64{256} << 20;
constexpr qint64 mostPixels = 100'000'000;

/// While it exists, pictures may take the memory that `mostPixels` of 8 bytes need, in MiB.
class RoomForPictures {
public:
    RoomForPictures() : _before(QImageReader::allocationLimit())
    {
        constexpr int room = 800;
        QImageReader::setAllocationLimit(room);
    }
    ~RoomForPictures() { QImageReader::setAllocationLimit(_before); }
    RoomForPictures(const RoomForPictures&) = delete;
    RoomForPictures& operator=(const RoomForPictures&) = delete;

private:
    int _before;
};

}  // namespace

bool isPictureFile(const QString& path)
{
    const QFileInfo info(path);
    // Reading a pipe could block the panel.
    if (!info.isFile() || info.size() > largestPictureFile) return false;
    return !QImageReader::imageFormat(path).isEmpty();
}

Result<QImage> readPicture(const QString& path)
{
    const QFileInfo info(path);
    const std::string name = excerpt(info.fileName().toStdString());
    QFile file(path);
    // Opening a pipe could block the panel.
    if (!info.isFile() || info.size() > largestPictureFile || !file.open(QIODevice::ReadOnly)) {
        return Message{phrase("\"%1\" cannot be read", name),
                       phrase("check that it is a file of at most 256 MiB that you can read")};
    }
    return readPicture(file, name);
}

Result<QImage> readPicture(QIODevice& device, const std::string& name)
{
    QImageReader reader(&device);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead()) {
        return Message{phrase("\"%1\" is not a picture that can be read", name),
                       phrase("use PNG, JPEG, SVG, or WebP if Qt's plug-in for it is installed")};
    }
    const bool isSvg = reader.format().startsWith("svg");
    // The size of a drawing is not asked for, because Qt would open what the drawing refers to.
    const QSize size = isSvg ? QSize() : reader.size();
    if (qint64{size.width()} * size.height() > mostPixels) {
        return Message{phrase("\"%1\" has more than 100 megapixels", name),
                       phrase("make a smaller copy of it")};
    }
    const RoomForPictures room;
    QImage image = isSvg ? readSvgPicture(device) : reader.read();
    if (image.isNull()) {
        return Message{phrase("\"%1\" is damaged", name), phrase("use another copy of it")};
    }
    const QColorSpace srgb(QColorSpace::SRgb);
    if (image.colorSpace().isValid() && image.colorSpace() != srgb) image.convertToColorSpace(srgb);
    return image;
}

QString pictureFilter()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    return QStringLiteral("%1 (%2);;%3")
        .arg(QCoreApplication::translate("ListFileFilters", "Pictures"), patterns.join(u' '),
             QCoreApplication::translate("ListFileFilters", "All files (*)"));
}

}  // namespace vantorel
