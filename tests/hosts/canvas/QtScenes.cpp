#include "Scenes.h"
#include "hosts/qt/QtCanvas.h"

#include <QImage>
#include <QPainter>

namespace vantorel {

PaintedScene paintWithQt(const Scene& scene, double ratio)
{
    QImage image((QSizeF(scene.size.width, scene.size.height) * ratio).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        QtCanvas canvas(painter, {0, 0, scene.size.width, scene.size.height});
        scene.paint(canvas);
    }
    PaintedScene painted{image.width(), image.height(), {}};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            painted.pixels.push_back(image.pixel(x, y));
    return painted;
}

}  // namespace vantorel
