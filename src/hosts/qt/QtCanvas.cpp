#include "hosts/qt/QtCanvas.h"

#include "hosts/common/PaintedLines.h"
#include "hosts/common/TextLines.h"
#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtVersions.h"
#include "hosts/qt/TextScale.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPainterPath>

#include <algorithm>
#include <iterator>

namespace vantorel {
namespace {

using Kind = HostBezierPath::ElementKind;

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

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, HostRect bounds, const std::optional<QPalette>& palette)
    : _painter(painter),
      _bounds(bounds),
      _scale(textScale()),
      _palette(palette),
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
    if (isPolygon(path)) {
        const auto& elements = path.elements();
        _corners.clear();
        std::transform(elements.begin(), elements.end() - 1, std::back_inserter(_corners),
                       [&](const auto& element) { return place(element.point); });
        _painter.drawPolygon(_corners.data(), static_cast<int>(_corners.size()), Qt::WindingFill);
    } else {
        _painter.drawPath(painterPath(path, place));
    }
}

void QtCanvas::strokeRect(const QRectF& rect, double lineWidth, const QColor& color)
{
    setAntialiasing(false);
    for (const PaintedBar& bar :
         barsOfStroke({rect.left(), rect.top(), rect.right(), rect.bottom()}, lineWidth * _scale,
                      _painter.device()->devicePixelRatioF())) {
        _painter.fillRect(QRectF(bar.left, bar.top, bar.width(), bar.height()), color);
    }
}

/// Strokes an open line through the middle of pixels of the device. Horizontal and vertical pieces
/// are filled bars, so that only slanted ones cost a smooth stroke.
void QtCanvas::strokeOpenLine(const HostBezierPath& path, const QPen& pen)
{
    const qreal ratio = _painter.device()->devicePixelRatioF();
    const qreal half = halfStrokeWidth(pen.widthF(), ratio);
    QPointF last;
    for (const auto& element : path.elements()) {
        const QPointF exact = placed(element.point);
        const QPointF point(middleOfPixel(exact.x(), ratio), middleOfPixel(exact.y(), ratio));
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
    // The pieces of a line overlap where they meet, which would show in a translucent colour.
    if (brush.alpha() == 255 && isOpenLine(path)) {
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
    const QFont font = fontOf(text);
    const QFontMetricsF metrics(font);
    const std::u16string shown = u16From(shownText(text));
    const auto lines = linesOf(shown);
    _painter.setFont(font);
    _painter.setPen(qColorFrom(text.color));
    const QPointF lowerLeft = placed(at);
    qreal baseline =
        lowerLeft.y() - metrics.height() * static_cast<qreal>(lines.size()) + metrics.ascent();
    for (const std::u16string_view line : lines) {
        _painter.drawText(QPointF(lowerLeft.x(), baseline), qStringFrom(line));
        baseline += metrics.height();
    }
}

QRect QtCanvas::pixelsOf(HostRect rect) const
{
    const QRectF device = _painter.deviceTransform().mapRect(placed(rect));
    return QRect(QPoint(qRound(device.left()), qRound(device.top())),
                 QPoint(qRound(device.right()) - 1, qRound(device.bottom()) - 1));
}

HostPixelSize QtCanvas::pixelSizeOf(HostRect rect) const
{
    const QRect place = pixelsOf(rect);
    return {std::max(0, place.width()), std::max(0, place.height())};
}

void QtCanvas::drawPixels(const HostPixels& pixels, HostRect rect)
{
    const QRect place = pixelsOf(rect);
    if (pixels.isEmpty() || place.isEmpty()) return;
    constexpr int bytesPerPixel = 4;
    const QImage picture(reinterpret_cast<const uchar*>(pixels.row(0)), pixels.width(),
                         pixels.height(), pixels.width() * bytesPerPixel,
                         QImage::Format_ARGB32_Premultiplied);
    _painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    setAntialiasing(false);
    const QTransform fromDevice = _painter.deviceTransform().inverted();
    _painter.drawImage(fromDevice.mapRect(QRectF(place)), picture);
}

HostColor QtCanvas::themeColor(HostThemeColor kind) const
{
    const QPalette palette = _palette.value_or(QApplication::palette());
    const auto color = [&](QPalette::ColorRole role) { return hostColorFrom(palette.color(role)); };
    return themeColorOf({color(QPalette::Window), color(QPalette::Base),
                         color(QPalette::WindowText), color(QPalette::Highlight)},
                        kind);
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
