#include "panel/widgets/ContrastChip.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/Swatch.h"

#include <QFontMetricsF>

#include <algorithm>

namespace vantorel {
namespace {

// The size of the panel's labels: each further font costs time at the start.
constexpr int chipTextPoints = 12;
constexpr int chipHeightPoints = 20;
constexpr int chipPaddingPoints = 6;

QColor levelColor(ContrastLevel level, const ThemeColors& theme)
{
    switch (level) {
        case ContrastLevel::fails:
            return theme.error;
        case ContrastLevel::largeText:
            return theme.warn;
        case ContrastLevel::normalText:
        case ContrastLevel::enhanced:
            break;
    }
    return theme.good;
}

}  // namespace

qreal ContrastChip::height()
{
    const QFontMetricsF metrics(fontOfSize(chipTextPoints));
    return std::max<qreal>(scaled(chipHeightPoints), metrics.height());
}

ContrastChip::ContrastChip(double ratio, qreal mostWidth)
    : _font(fontOfSize(chipTextPoints)),
      _bold(_font),
      _ratio(shownContrastRatio(ratio)),
      _kind(contrastLevel(ratio))
{
    _bold.setBold(true);
    const qreal padding = scaled(chipPaddingPoints);
    _ratioWidth = QFontMetricsF(_font).horizontalAdvance(_ratio);
    const QString level = contrastLevelName(_kind);
    const qreal space = QFontMetricsF(_font).horizontalAdvance(u' ');
    const qreal levelWidth = space + QFontMetricsF(_bold).horizontalAdvance(level);
    if (_ratioWidth + levelWidth + 2 * padding <= mostWidth) {
        _level = level;
        _levelWidth = levelWidth;
    }
    const qreal width = _ratioWidth + _levelWidth + 2 * padding;
    if (width <= mostWidth) _size = QSizeF(width, height());
}

void ContrastChip::paint(QPainter& painter, QPointF topLeft, const ThemeColors& theme,
                         Qt::LayoutDirection direction) const
{
    if (_size.isEmpty()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const PixelGrid grid(painter);
    const QRectF place = grid.nearest(QRectF(topLeft, _size));
    const qreal radius = place.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.base);
    painter.drawRoundedRect(place, radius, radius);
    paintSwatchLine(painter, place, radius, grid.lineWidth(1), theme.swatchLine);

    const qreal padding = (place.width() - _ratioWidth - _levelWidth) / 2;
    QRectF ratio = place.adjusted(padding, 0, -padding, 0);
    QRectF level = ratio;
    const bool mirrored = direction == Qt::RightToLeft;
    if (mirrored) {
        level.setRight(ratio.right() - _ratioWidth);
        ratio.setLeft(level.right());
    } else {
        ratio.setWidth(_ratioWidth);
        level.setLeft(ratio.right());
    }
    // The widths were measured in fractions, and a text that needs one more is not to be cut.
    constexpr int flags = Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine;
    painter.setFont(_font);
    painter.setPen(theme.text);
    painter.drawText(ratio, flags | (mirrored ? Qt::AlignRight : Qt::AlignLeft), _ratio);
    painter.setFont(_bold);
    painter.setPen(levelColor(_kind, theme));
    painter.drawText(level, flags | (mirrored ? Qt::AlignLeft : Qt::AlignRight), _level);
    painter.restore();
}

}  // namespace vantorel
