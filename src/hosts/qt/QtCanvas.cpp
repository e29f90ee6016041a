#include "hosts/qt/QtCanvas.h"

#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtVersions.h"
#include "hosts/qt/TextScale.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

using Kind = HostBezierPath::ElementKind;

/// Returns the rectangle that a path describes, if its sides are horizontal and vertical.
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

/// `place` maps a point of the path to one of the painter.
template <typename Place>
QPainterPath painterPath(const HostBezierPath& path, Place place)
{
    QPainterPath result;
    result.setFillRule(Qt::WindingFill);
    for (const auto& element : path.elements()) {
        switch (element.kind) {
            case Kind::moveTo:
                result.moveTo(place(element.point));
                break;
            case Kind::lineTo:
                result.lineTo(place(element.point));
                break;
            case Kind::close:
                result.closeSubpath();
                break;
        }
    }
    return result;
}

/// Whether a path is one closed polygon. If so, its corners are in `corners`.
template <typename Place>
bool loadPolygon(const HostBezierPath& path, Place place, std::vector<QPointF>& corners)
{
    const auto& elements = path.elements();
    if (elements.size() < 4 || elements.back().kind != Kind::close) return false;
    corners.clear();
    for (std::size_t i = 0; i + 1 < elements.size(); ++i) {
        if (elements[i].kind != (i == 0 ? Kind::moveTo : Kind::lineTo)) return false;
        corners.push_back(place(elements[i].point));
    }
    return true;
}

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, HostRect bounds)
    : _painter(painter),
      _bounds(bounds),
      _scale(textScale()),
      // Fills end on whole pixels, which may lie beyond their edges.
      _dirty(painter.hasClipping()
                 ? std::optional(painter.clipBoundingRect().adjusted(-1, -1, 1, 1))
                 : std::nullopt)
{
}

QPointF QtCanvas::placed(HostPoint point) const
{
    return {(point.x - _bounds.x) * _scale, (_bounds.maxY() - point.y) * _scale};
}

QRectF QtCanvas::placed(HostRect rect) const
{
    return {placed(HostPoint{rect.x, rect.maxY()}), placed(HostPoint{rect.maxX(), rect.y})};
}

// Setting a painter's state costs time even if the state does not change, and a wheel has two
// thousand cells.
void QtCanvas::setAntialiasing(bool on)
{
    if (_painter.testRenderHint(QPainter::Antialiasing) != on) {
        _painter.setRenderHint(QPainter::Antialiasing, on);
    }
}

void QtCanvas::fill(const HostBezierPath& path, const HostColor& color)
{
    const QColor brush = qColorFrom(color);
    if (!brush.isValid() || path.isEmpty()) return;
    setAntialiasing(false);
    if (const auto rect = uprightRect(path)) {
        const QRectF place = placed(*rect);
        if (!_dirty || _dirty->intersects(place)) _painter.fillRect(place, brush);
        return;
    }
    if (_painter.pen().style() != Qt::NoPen) _painter.setPen(Qt::NoPen);
    _painter.setBrush(brush);
    const auto place = [this](HostPoint point) { return placed(point); };
    if (loadPolygon(path, place, _corners)) {
        _painter.drawPolygon(_corners.data(), static_cast<int>(_corners.size()), Qt::WindingFill);
    } else {
        _painter.drawPath(painterPath(path, place));
    }
}

/// Strokes a rectangle as four filled bars on whole pixels of the device. That is crisp, and takes
/// a tenth of the time of a smooth stroke.
void QtCanvas::strokeRect(const QRectF& rect, double lineWidth, const QColor& color)
{
    const qreal ratio = _painter.device()->devicePixelRatioF();
    const qreal pixels = std::max(1.0, std::round(lineWidth * _scale * ratio));
    // From the edge between pixels where a fill ends too, so that lines of two widths on one
    // rectangle lie evenly within each other; the pixel in the middle of an odd width is inside.
    const auto outerEdge = [&](qreal edge, qreal outwards) {
        return (std::round(edge * ratio) + outwards * std::floor(pixels / 2)) / ratio;
    };
    const qreal left = outerEdge(rect.left(), -1);
    const qreal top = outerEdge(rect.top(), -1);
    const qreal right = std::max(outerEdge(rect.right(), 1), left);
    const qreal bottom = std::max(outerEdge(rect.bottom(), 1), top);
    const qreal width = std::min(pixels / ratio, right - left);
    const qreal height = std::min(pixels / ratio, bottom - top);
    const qreal innerHeight = std::max(bottom - top - 2 * height, 0.0);
    setAntialiasing(false);
    _painter.fillRect(QRectF(left, top, right - left, height), color);
    _painter.fillRect(QRectF(left, bottom - height, right - left, height), color);
    _painter.fillRect(QRectF(left, top + height, width, innerHeight), color);
    _painter.fillRect(QRectF(right - width, top + height, width, innerHeight), color);
}

/// Strokes an open line through the middle of pixels of the device. Horizontal and vertical pieces
/// are filled bars, so that only slanted ones cost a smooth stroke.
void QtCanvas::strokeOpenLine(const HostBezierPath& path, const QPen& pen)
{
    const qreal ratio = _painter.device()->devicePixelRatioF();
    const qreal half = std::max(1.0, std::round(pen.widthF() * ratio)) / ratio / 2;
    const auto snapped = [ratio](qreal x) { return (std::floor(x * ratio) + 0.5) / ratio; };
    QPointF last;
    for (const auto& element : path.elements()) {
        const QPointF exact = placed(element.point);
        const QPointF point(snapped(exact.x()), snapped(exact.y()));
        if (element.kind == Kind::lineTo) {
            if (point.x() == last.x() || point.y() == last.y()) {
                setAntialiasing(false);
                const QRectF piece = QRectF(last, point).normalized();
                _painter.fillRect(piece.adjusted(-half, -half, half, half), pen.color());
            } else {
                setAntialiasing(true);
                _painter.setPen(pen);
                _painter.drawLine(last, point);
            }
        }
        last = point;
    }
}

void QtCanvas::stroke(const HostBezierPath& path, const HostColor& color)
{
    const QColor brush = qColorFrom(color);
    if (!brush.isValid() || path.isEmpty()) return;
    if (const auto rect = uprightRect(path)) {
        strokeRect(placed(*rect), path.lineWidth(), brush);
        return;
    }
    QPen pen(brush, path.lineWidth() * _scale);
    pen.setJoinStyle(Qt::MiterJoin);
    // An outline must stay exactly on its shape. The pieces of a line overlap where they meet,
    // which would show in a translucent colour.
    const auto closes = [](const auto& element) { return element.kind == Kind::close; };
    if (brush.alpha() == 255 && std::ranges::none_of(path.elements(), closes)) {
        strokeOpenLine(path, pen);
        return;
    }
    setAntialiasing(true);
    _painter.setBrush(Qt::NoBrush);
    _painter.setPen(pen);
    _painter.drawPath(painterPath(path, [this](HostPoint point) { return placed(point); }));
}

void QtCanvas::drawText(const HostText& text, HostPoint at)
{
    const QFont font = fontOfSize(text.pointSize);
    const QFontMetricsF metrics(font);
    QStringList lines = displayName(text.string).split(u'\n');
    if (lines.size() > 1 && lines.back().isEmpty()) lines.removeLast();
    _painter.setFont(font);
    _painter.setPen(qColorFrom(text.color));
    const QPointF lowerLeft = placed(at);
    qreal baseline =
        lowerLeft.y() - metrics.height() * static_cast<qreal>(lines.size()) + metrics.ascent();
    for (const QString& line : lines) {
        _painter.drawText(QPointF(lowerLeft.x(), baseline), line);
        baseline += metrics.height();
    }
}

QSizeF pictureSize(const HostImage& image)
{
    return QSizeF(image.size.width, image.size.height) * textScale();
}

QPixmap pixmapOfImage(const HostImage& image, qreal devicePixelRatio)
{
    const QSizeF size = pictureSize(image);
    QPixmap pixmap((size * devicePixelRatio).toSize().expandedTo(QSize(1, 1)));
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(image.fraction);
    QtCanvas canvas(painter, {0, 0, image.size.width, image.size.height});
    image.paint(canvas);
    return pixmap;
}

void drawInMiddle(QPainter& painter, const QPixmap& pixmap, const QRectF& room)
{
    QRectF place(QPointF(), sizeInPixels(pixmap));
    place.moveCenter(room.center());
    painter.drawPixmap(place.topLeft().toPoint(), pixmap);
}

}  // namespace vantorel
