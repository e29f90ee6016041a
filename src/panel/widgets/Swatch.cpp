#include "panel/widgets/Swatch.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/widgets/PixelGrid.h"

#include <QDrag>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int checkPoints = 6;
constexpr int swatchRadiusPoints = 4;
constexpr int draggedPoints = 24;

QPixmap draggedPicture(const QWidget& source, const HostColor& color)
{
    const qreal ratio = source.devicePixelRatioF();
    const QSize size = QSize(1, 1) * scaled(draggedPoints);
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintSwatch(painter, QRectF(QPointF(), size), color, themeColors(source.palette()));
    return picture;
}

}  // namespace

QBrush checkersBrush(const ThemeColors& theme, qreal pixelsPerUnit)
{
    const int side = std::max(1, qRound(scaled(checkPoints) * pixelsPerUnit));
    QPixmap squares(2 * side, 2 * side);
    squares.fill(theme.checkA);
    QPainter painter(&squares);
    painter.fillRect(side, 0, side, side, theme.checkB);
    painter.fillRect(0, side, side, side, theme.checkB);
    painter.end();
    QBrush brush(squares);
    brush.setTransform(QTransform::fromScale(1 / pixelsPerUnit, 1 / pixelsPerUnit));
    return brush;
}

qreal swatchRadius()
{
    return scaled(swatchRadiusPoints);
}

void paintSwatchLine(QPainter& painter, const QRectF& place, qreal radius, qreal width,
                     const QColor& color)
{
    const qreal half = width / 2;
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void paintSwatch(QPainter& painter, const QRectF& place, const HostColor& color,
                 const ThemeColors& theme)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal radius = swatchRadius();
    const PixelGrid grid(painter);
    painter.setPen(Qt::NoPen);
    if (color.alphaComponent() < 1) {
        painter.setBrush(checkersBrush(theme, grid.pixelsPerUnit()));
        painter.setBrushOrigin(place.topLeft());
        painter.drawRoundedRect(place, radius, radius);
    }
    painter.setBrush(qColorFrom(mappedIntoSRGB(color)));
    painter.drawRoundedRect(place, radius, radius);
    paintSwatchLine(painter, place, radius, grid.lineWidth(1), theme.swatchLine);
    painter.restore();
}

bool dragColor(QWidget& source, const HostColor& color)
{
    auto* drag = new QDrag(&source);
    drag->setMimeData(mimeDataFromColor(color).release());
    const QPixmap picture = draggedPicture(source, color);
    drag->setPixmap(picture);
    return drag->exec(Qt::CopyAction) != Qt::IgnoreAction;
}

}  // namespace vantorel
