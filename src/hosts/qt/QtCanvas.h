#pragma once

#include "host/HostCanvas.h"
#include "hosts/common/ThemeMixtures.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPointF>

#include <optional>
#include <vector>

namespace vantorel {

/// Paints through a QPainter. Fills have hard edges, so that neighbours meet without seams; strokes
/// are smooth, except that horizontal and vertical ones lie on whole pixels of the device.
class QtCanvas final : public HostCanvas {
public:
    /// The painter paints a widget or picture that shows `bounds`; it must outlive the canvas.
    /// `palette` is that of the ground; the program's unless it is given.
    QtCanvas(QPainter& painter, HostRect bounds,
             const std::optional<QPalette>& palette = std::nullopt);

    void fill(const HostBezierPath& path, const HostColor& color) override;
    void stroke(const HostBezierPath& path, const HostColor& color) override;
    void drawText(const HostText& text, HostPoint at) override;
    void drawPixels(const HostPixels& pixels, HostRect rect) override;
    [[nodiscard]] HostPixelSize pixelSizeOf(HostRect rect) const override;
    [[nodiscard]] HostColor themeColor(HostThemeColor kind) const override;

private:
    /// The same as `widgetPoint` and `widgetRect`, which look up the scale at each call.
    [[nodiscard]] QPointF placed(HostPoint point) const;
    [[nodiscard]] QRectF placed(HostRect rect) const;
    /// In pixels of the device.
    [[nodiscard]] QRect pixelsOf(HostRect rect) const;
    void setAntialiasing(bool on);
    void strokeRect(const QRectF& rect, double lineWidth, const QColor& color);
    void strokeOpenLine(const HostBezierPath& path, const QPen& pen);

    QPainter& _painter;
    HostRect _bounds;
    double _scale;
    std::optional<QPalette> _palette;
    /// Anything outside need not be painted. Empty if everything must be painted.
    std::optional<QRectF> _dirty;
    std::vector<QPointF> _corners;  ///< of the polygon that is painted; its storage stays
};

/// In device-independent pixels.
[[nodiscard]] QSizeF pictureSize(const HostImage& image);

/// Renders an image for a screen with this number of device pixels per point.
[[nodiscard]] QPixmap pixmapOfImage(const HostImage& image, qreal devicePixelRatio);

/// On whole device-independent pixels.
void drawInMiddle(QPainter& painter, const QPixmap& pixmap, const QRectF& room);

}  // namespace vantorel
