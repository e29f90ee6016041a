#include "hosts/qt/QtDrag.h"

#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtVersions.h"

#include <QMimeData>

#include <memory>

namespace vantorel {

QDrag* makeDrag(QWidget& source, const HostImage& image, const HostPasteboardItem& item)
{
    auto data = std::make_unique<QMimeData>();
    if (const auto* text = std::get_if<std::string>(&item)) {
        data->setText(QString::fromStdString(*text));
    } else {
        const QColor color = qColorFrom(std::get<HostColor>(item));
        if (!color.isValid()) return nullptr;
        data->setColorData(color);
    }
    auto* drag = new QDrag(&source);
    drag->setMimeData(data.release());
    const QPixmap pixmap = pixmapOfImage(image, source.devicePixelRatioF());
    drag->setPixmap(pixmap);
    // The pointer is at the lower left corner, so that the target below it stays visible.
    drag->setHotSpot(QPoint(0, qRound(sizeInPixels(pixmap).height())));
    return drag;
}

}  // namespace vantorel
