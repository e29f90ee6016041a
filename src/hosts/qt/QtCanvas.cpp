#include "hosts/qt/QtCanvas.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtView.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <optional>

namespace vantorel {
namespace {

using Kind = HostBezierPath::ElementKind;

/// The rectangle that a path is, if it is an upright one.
std::optional<HostRect> uprightRect(const HostBezierPath& path)
{
    const auto& e = path.elements();
    if (e.size() != 5 || e[0].kind != Kind::moveTo || e[4].kind != Kind::close) return std::nullopt;
    const HostPoint a = e[0].point;
    const HostPoint c = e[2].point;
    if (e[1].point != HostPoint{c.x, a.y} || e[3].point != HostPoint{a.x, c.y}) return std::nullopt;
    return HostRect{std::min(a.x, c.x), std::min(a.y, c.y), std::abs(c.x - a.x),
                    std::abs(c.y - a.y)};
}

QPainterPath painterPath(const HostBezierPath& path, HostRect bounds)
{
    QPainterPath result;
    result.setFillRule(Qt::WindingFill);
    for (const auto& element : path.elements()) {
        switch (element.kind) {
            case Kind::moveTo:
                result.moveTo(widgetPoint(element.point, bounds));
                break;
            case Kind::lineTo:
                result.lineTo(widgetPoint(element.point, bounds));
                break;
            case Kind::close:
                result.closeSubpath();
                break;
        }
    }
    return result;
}

/// The corners of a path of one closed part without subpaths, if it is one.
std::optional<QPolygonF> polygon(const HostBezierPath& path, HostRect bounds)
{
    const auto& elements = path.elements();
    if (elements.size() < 4 || elements.back().kind != Kind::close) return std::nullopt;
    QPolygonF corners;
    corners.reserve(static_cast<qsizetype>(elements.size()));
    for (std::size_t i = 0; i + 1 < elements.size(); ++i) {
        if (elements[i].kind != (i == 0 ? Kind::moveTo : Kind::lineTo)) return std::nullopt;
        corners.append(widgetPoint(elements[i].point, bounds));
    }
    return corners;
}

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, HostRect bounds) : _painter(painter), _bounds(bounds) {}

void QtCanvas::fill(const HostBezierPath& path, const HostColor& color)
{
    const QColor brush = qColorFrom(color);
    if (!brush.isValid() || path.isEmpty()) return;
    _painter.setRenderHint(QPainter::Antialiasing, false);
    if (const auto rect = uprightRect(path)) {
        _painter.fillRect(widgetRect(*rect, _bounds), brush);
        return;
    }
    _painter.setPen(Qt::NoPen);
    _painter.setBrush(brush);
    if (const auto corners = polygon(path, _bounds)) {
        _painter.drawPolygon(*corners, Qt::WindingFill);
    } else {
        _painter.drawPath(painterPath(path, _bounds));
    }
}

void QtCanvas::stroke(const HostBezierPath& path, const HostColor& color)
{
    const QColor brush = qColorFrom(color);
    if (!brush.isValid() || path.isEmpty()) return;
    QPen pen(brush, path.lineWidth());
    pen.setJoinStyle(Qt::MiterJoin);
    _painter.setBrush(Qt::NoBrush);
    _painter.setRenderHint(QPainter::Antialiasing, true);
    if (const auto rect = uprightRect(path)) {
        const qreal ratio = _painter.device()->devicePixelRatioF();
        const qreal pixels = std::max(1.0, std::round(path.lineWidth() * ratio));
        const qreal middle = static_cast<int>(pixels) % 2 == 1 ? 0.5 : 0.0;
        const auto snapped = [&](qreal edge) {
            return (std::round(edge * ratio - middle) + middle) / ratio;
        };
        const QRectF exact = widgetRect(*rect, _bounds);
        pen.setWidthF(pixels / ratio);
        _painter.setPen(pen);
        _painter.drawRect(QRectF(QPointF(snapped(exact.left()), snapped(exact.top())),
                                 QPointF(snapped(exact.right()), snapped(exact.bottom()))));
        return;
    }
    _painter.setPen(pen);
    _painter.drawPath(painterPath(path, _bounds));
}

void QtCanvas::drawText(const HostText& text, HostPoint at)
{
    const QFont font = fontOfSize(text.pointSize);
    const QFontMetricsF metrics(font);
    QStringList lines = qStringFrom(text.string).split(u'\n');
    if (lines.size() > 1 && lines.back().isEmpty()) lines.removeLast();
    _painter.setFont(font);
    _painter.setPen(qColorFrom(text.color));
    const QPointF lowerLeft = widgetPoint(at, _bounds);
    qreal baseline =
        lowerLeft.y() - metrics.height() * static_cast<qreal>(lines.size()) + metrics.ascent();
    for (const QString& line : lines) {
        _painter.drawText(QPointF(lowerLeft.x(), baseline), line);
        baseline += metrics.height();
    }
}

QPixmap pixmapOfImage(const HostImage& image, qreal devicePixelRatio)
{
    const QSizeF size(image.size.width, image.size.height);
    QPixmap pixmap((size * devicePixelRatio).toSize().expandedTo(QSize(1, 1)));
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(image.fraction);
    QtCanvas canvas(painter, {0, 0, image.size.width, image.size.height});
    image.paint(canvas);
    return pixmap;
}

}  // namespace vantorel
