#include "screenpick/DesktopPicture.h"

#include <QGuiApplication>
#include <QPixmap>

namespace vantorel {

std::optional<DesktopPicture> DesktopPicture::take()
{
    std::vector<Screen> screens;
    for (QScreen* screen : QGuiApplication::screens()) {
        QImage image = screen->grabWindow(0).toImage();
        if (image.isNull()) return std::nullopt;
        image.setDevicePixelRatio(1);
        // Scaling reduces a screen's size, but its origin is in unscaled pixels.
        screens.push_back({screen, screen->geometry().topLeft(), std::move(image)});
    }
    if (screens.empty()) return std::nullopt;
    return DesktopPicture(std::move(screens));
}

std::vector<QRect> DesktopPicture::frames() const
{
    std::vector<QRect> frames;
    frames.reserve(_screens.size());
    for (const Screen& screen : _screens)
        frames.push_back(screen.frame());
    return frames;
}

std::optional<QColor> DesktopPicture::colorAt(QPoint pixel) const
{
    for (const Screen& screen : _screens) {
        if (screen.frame().contains(pixel)) {
            QColor color = screen.image.pixelColor(pixel - screen.origin);
            // Some displays have an alpha channel, which does not affect the visible colour.
            color.setAlpha(255);
            return color;
        }
    }
    return std::nullopt;
}

}  // namespace vantorel
