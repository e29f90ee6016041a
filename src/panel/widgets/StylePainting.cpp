#include "panel/widgets/StylePainting.h"

#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>

namespace vantorel {
namespace {

QPen roundPen(const QColor& color, qreal width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

SmoothPainting::SmoothPainting(QPainter& painter) : _painter(painter)
{
    _painter.save();
    _painter.setRenderHint(QPainter::Antialiasing);
}

SmoothPainting::~SmoothPainting()
{
    _painter.restore();
}

QRectF onDevicePixels(const QPainter& painter, const QRectF& rect)
{
    const QTransform toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale) return rect;
    const QRectF exact = toDevice.mapRect(rect);
    const QRectF whole(QPointF(std::round(exact.left()), std::round(exact.top())),
                       QPointF(std::round(exact.right()), std::round(exact.bottom())));
    return toDevice.inverted().mapRect(whole);
}

qreal lineOnDevicePixels(const QPainter& painter, qreal width)
{
    const qreal scale = painter.deviceTransform().m11();
    if (scale <= 0) return width;
    return std::max(1.0, std::round(width * scale)) / scale;
}

void paintRounded(QPainter& painter, const QRectF& rect, qreal radius, const QColor& ground,
                  const QColor& border, qreal borderWidth)
{
    const SmoothPainting smooth(painter);
    QRectF shape = onDevicePixels(painter, rect);
    painter.setBrush(ground.isValid() ? QBrush(ground) : QBrush(Qt::NoBrush));
    painter.setPen(Qt::NoPen);
    if (border.isValid()) {
        const qreal width = lineOnDevicePixels(painter, borderWidth);
        painter.setPen(QPen(border, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        shape.adjust(width / 2, width / 2, -width / 2, -width / 2);
        radius -= width / 2;
    }
    radius = std::clamp(radius, 0.0, std::min(shape.width(), shape.height()) / 2);
    painter.drawRoundedRect(shape, radius, radius);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, qreal radius, const ThemeColors& colors)
{
    paintRounded(painter, rect, radius, {}, colors.accent, ringWidth);
}

void paintChevron(QPainter& painter, const QRectF& room, ChevronDirection direction,
                  const QColor& color)
{
    constexpr qreal half = 3.5;
    constexpr qreal depth = 1.75;
    constexpr qreal stroke = 1.4;
    const SmoothPainting smooth(painter);
    painter.translate(room.center());
    switch (direction) {
        case ChevronDirection::up:
            painter.rotate(180);
            break;
        case ChevronDirection::left:
            painter.rotate(90);
            break;
        case ChevronDirection::right:
            painter.rotate(-90);
            break;
        case ChevronDirection::down:
            break;
    }
    painter.setPen(roundPen(color, stroke));
    const std::array points{QPointF(-half, -depth), QPointF(0, depth), QPointF(half, -depth)};
    painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

void paintTick(QPainter& painter, const QRectF& room, const QColor& color)
{
    constexpr qreal stroke = 1.6;
    const SmoothPainting smooth(painter);
    painter.translate(room.center());
    painter.setPen(roundPen(color, stroke));
    const std::array points{QPointF(-4, 0.25), QPointF(-1.25, 3), QPointF(4, -2.75)};
    painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

ThemeColors themeColors(const QStyleOption& option)
{
    return themeColors(option.palette);
}

bool showsKeyboardFocus(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

QColor borderColor(const QStyleOption& option, const ThemeColors& colors)
{
    return isOff(option) ? colors.line : colors.edge;
}

QColor pressableGround(const QStyleOption& option, const ThemeColors& colors)
{
    if (isOff(option)) return colors.control;
    if (option.state.testFlag(QStyle::State_Sunken)) return colors.down;
    return option.state.testFlag(QStyle::State_MouseOver) ? colors.hover : colors.control;
}

}  // namespace vantorel
