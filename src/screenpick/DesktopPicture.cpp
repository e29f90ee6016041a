#include "screenpick/DesktopPicture.h"

#include "csscolor/ColorConversions.h"

#include <QGuiApplication>
#include <QPixmap>

#include <array>
#include <cmath>

namespace vantorel {
namespace {

/// Adds up light. Averages of encoded values would be darker than the area looks from afar.
class LightSum {
public:
    void add(QRgb pixel)
    {
        _sum[0] += lightOf(qRed(pixel));
        _sum[1] += lightOf(qGreen(pixel));
        _sum[2] += lightOf(qBlue(pixel));
        ++_count;
    }

    [[nodiscard]] std::optional<QColor> average() const
    {
        if (_count == 0) return std::nullopt;
        const auto encoded = [this](double sum) {
            const double light = sum / static_cast<double>(_count);
            return static_cast<int>(std::lround(255 * srgbFromLinear(light)));
        };
        return QColor(encoded(_sum[0]), encoded(_sum[1]), encoded(_sum[2]));
    }

private:
    static double lightOf(int encoded)
    {
        static const auto table = [] {
            std::array<double, 256> lights{};
            for (std::size_t i = 0; i < lights.size(); ++i)
                lights[i] = linearFromSRGB(static_cast<double>(i) / 255);
            return lights;
        }();
        return table[static_cast<std::size_t>(encoded)];
    }

    std::array<double, 3> _sum{};
    std::size_t _count = 0;
};

}  // namespace

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

std::optional<QColor> DesktopPicture::averageOf(const QRect& pixels) const
{
    if (pixels.size() == QSize(1, 1)) return colorAt(pixels.topLeft());
    LightSum sum;
    for (const Screen& screen : _screens) {
        const QRect part = pixels & screen.frame();
        if (part.isEmpty()) continue;
        const QImage image = screen.image.copy(part.translated(-screen.origin))
                                 .convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x)
                sum.add(row[x]);
        }
    }
    return sum.average();
}

}  // namespace vantorel
