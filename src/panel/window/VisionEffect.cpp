#include "panel/window/VisionEffect.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

namespace vantorel {

VisionEffect::VisionEffect(ColorVision vision, const QWidget& window)
    : _seen(vision), _window(window)
{
}

void VisionEffect::draw(QPainter* painter)
{
    QPoint place;
    const QPixmap contents = sourcePixmap(Qt::DeviceCoordinates, &place, NoPad);
    QImage image(contents.size(), QImage::Format_RGB32);
    image.setDevicePixelRatio(contents.devicePixelRatio());
    // The contents come without the ground on which Qt paints a window.
    image.fill(_window.palette().color(_window.backgroundRole()));
    QPainter(&image).drawPixmap(0, 0, contents);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(image.scanLine(y));
        _seen.replace({row, static_cast<std::size_t>(image.width())});
    }
    const QTransform transform = painter->worldTransform();
    painter->setWorldTransform({});
    painter->drawImage(place, image);
    painter->setWorldTransform(transform);
}

}  // namespace vantorel
