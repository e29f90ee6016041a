#include "panel/widgets/ColorBandPainter.h"

#include "csscolor/Contrast.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/Swatch.h"

#include <QImage>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int bandRadiusPoints = 8;
constexpr int editMarkPoints = 5;
constexpr int editMarkOutlinePoints = 2;
constexpr int dropInsetPoints = 3;
constexpr int dropRadiusPoints = 6;
constexpr int halfRingPoints = 2;

QPainterPath triangle(QPointF foot, qreal height)
{
    QPainterPath path(foot + QPointF(-height, 0));
    path.lineTo(foot + QPointF(0, -height));
    path.lineTo(foot + QPointF(height, 0));
    path.closeSubpath();
    return path;
}

}  // namespace

ColorBandPainter::ColorBandPainter(QPainter& painter, const ColorBandLayout& layout,
                                   const ThemeColors& theme)
    : _painter(painter),
      _layout(layout),
      _theme(theme),
      _grid(painter),
      _band(_grid.nearest(QRectF(layout.color.united(layout.background))))
{
    painter.setRenderHint(QPainter::Antialiasing);
}

QImage ColorBandPainter::colorsImage(const HostColor& color, const HostColor& background) const
{
    const qreal scale = _grid.pixelsPerUnit();
    QImage image((_band.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    const QRectF colors = _grid.nearest(QRectF(_layout.color));
    const QRectF backgrounds = _grid.nearest(QRectF(_layout.background));
    if (color.alphaComponent() < 1 || background.alphaComponent() < 1) {
        const QBrush squares = checkersBrush(_theme, scale);
        painter.fillRect(colors, squares);
        // The background's squares continue those of the colour.
        painter.fillRect(backgrounds, squares);
    }
    painter.fillRect(backgrounds, qColorFrom(background));
    painter.fillRect(colors, qColorFrom(color));
    QColor opaque = qColorFrom(color);
    opaque.setAlpha(255);
    QRectF third = colors;
    third.setWidth(_grid.nearest(colors.width() / 3));
    if (isMirrored()) third.moveRight(colors.right());
    painter.fillRect(third, opaque);
    return image;
}

void ColorBandPainter::paintColors(const HostColor& color, const HostColor& background)
{
    // An outline filled once has smooth corners; clips have not, and layers would show through
    // each other at the corners.
    QBrush colors(colorsImage(color, background));
    const qreal scale = _grid.pixelsPerUnit();
    colors.setTransform(QTransform::fromScale(1 / scale, 1 / scale));
    const qreal radius = scaled(bandRadiusPoints);
    _painter.setPen(Qt::NoPen);
    _painter.setBrush(colors);
    _painter.drawRoundedRect(_band, radius, radius);
    paintSwatchLine(_painter, _band, radius, _grid.lineWidth(1), _theme.swatchLine);
}

void ColorBandPainter::paintSample(const HostColor& color, const HostColor& background)
{
    const auto ground = composedOver(background, HostColor::whiteColor());
    const auto shown = ground ? composedOver(color, *ground) : std::nullopt;
    if (!shown) return;
    _painter.save();
    _painter.setFont(_layout.sampleFont);
    _painter.setPen(qColorFrom(*shown));
    _painter.translate(_layout.sample.center());
    _painter.scale(ColorBandLayout::sampleScale, ColorBandLayout::sampleScale);
    _painter.drawText(QRectF(), Qt::AlignCenter | Qt::TextDontClip, QStringLiteral("Aa"));
    _painter.restore();
    _layout.chip.paint(_painter, _layout.chipTopLeft, _theme,
                       isMirrored() ? Qt::RightToLeft : Qt::LeftToRight);
}

void ColorBandPainter::paintGamutName(const QString& name, const QRect& half)
{
    if (name.isEmpty()) return;
    constexpr int namePoints = 10;
    const QFont font = fontOfSize(namePoints);
    const QFontMetrics metrics(font);
    const int gap = scaled(4);
    QRect box(0, 0, metrics.horizontalAdvance(name) + 2 * gap, metrics.height());
    box.moveBottomLeft(half.bottomLeft() + QPoint(gap, -gap));
    if (isMirrored()) box.moveRight(half.right() - gap);
    _painter.setPen(Qt::NoPen);
    _painter.setBrush(_theme.base);
    _painter.drawRoundedRect(box, gap, gap);
    _painter.setFont(font);
    _painter.setPen(_theme.text);
    _painter.drawText(box, Qt::AlignCenter, name);
}

void ColorBandPainter::paintEditMark(const QRect& half)
{
    const QPointF foot(_grid.nearest(QRectF(half).center().x()), _band.bottom());
    const qreal height = scaled(editMarkPoints);
    _painter.setPen(Qt::NoPen);
    _painter.setBrush(Qt::white);
    _painter.drawPath(triangle(foot, height + scaled(editMarkOutlinePoints)));
    _painter.setBrush(Qt::black);
    _painter.drawPath(triangle(foot, height));
}

QPainterPath ColorBandPainter::outline(const QRect& half, qreal inset) const
{
    const QRectF place = _grid.nearest(QRectF(half)).adjusted(inset, inset, -inset, -inset);
    const qreal radius = std::max<qreal>(0, scaled(bandRadiusPoints) - inset);
    // From the seam along the upper edge, around the band's end, and back along the lower edge.
    const bool isRoundAtLeft = half.x() == 0;
    const qreal seam = isRoundAtLeft ? place.right() : place.left();
    const qreal end = isRoundAtLeft ? place.left() : place.right();
    const qreal inwards = isRoundAtLeft ? radius : -radius;
    QPainterPath path(QPointF(seam, place.top()));
    path.lineTo(end + inwards, place.top());
    const QSizeF corner(2 * radius, 2 * radius);
    const qreal cornerLeft = std::min(end, end + 2 * inwards);
    const QRectF upper(QPointF(cornerLeft, place.top()), corner);
    const QRectF lower(QPointF(cornerLeft, place.bottom() - 2 * radius), corner);
    const qreal turn = isRoundAtLeft ? 90 : -90;
    path.arcTo(upper, 90, turn);
    path.arcTo(lower, 90 + turn, turn);
    path.lineTo(seam, place.bottom());
    path.closeSubpath();
    return path;
}

void ColorBandPainter::paintDropFrame(const QRect& half)
{
    const qreal inset = scaled(dropInsetPoints);
    const qreal width = _grid.lineWidth(scaled(halfRingPoints));
    const QRectF place = _grid.nearest(QRectF(half)).adjusted(inset, inset, -inset, -inset);
    const qreal radius = scaled(dropRadiusPoints);
    // Black dashes on white are visible on every colour.
    paintSwatchLine(_painter, place, radius, width, Qt::white);
    QPen dashes(Qt::black, width, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({3, 2});
    _painter.setPen(dashes);
    const qreal middle = width / 2;
    _painter.drawRoundedRect(place.adjusted(middle, middle, -middle, -middle), radius - middle,
                             radius - middle);
}

void ColorBandPainter::paintFocusRing(const QRect& half)
{
    const qreal width = _grid.lineWidth(scaled(halfRingPoints));
    // The colour may be that of the ring.
    const qreal gap = _grid.lineWidth(1);
    _painter.setBrush(Qt::NoBrush);
    _painter.setPen(QPen(_theme.base, gap, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    _painter.drawPath(outline(half, width + gap / 2));
    _painter.setPen(QPen(_theme.accent, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    _painter.drawPath(outline(half, width / 2));
}

}  // namespace vantorel
