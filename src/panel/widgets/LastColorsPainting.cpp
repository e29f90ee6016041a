#include "panel/widgets/LastColorsPainting.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/Swatch.h"

#include <QStyle>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int hintHeightPoints = 28;
constexpr int hintTextPoints = 11;
constexpr int hintPaddingPoints = 8;
constexpr int hintRadiusPoints = 6;
constexpr int lastColorMarkPoints = 2;

}  // namespace

void paintLastColorsHint(QPainter& painter, const QWidget& row, const QString& sentence)
{
    const ThemeColors theme = themeColors(row.palette());
    const PixelGrid grid(painter);
    QRectF place(0, 0, row.width(), std::min(row.height(), scaled(hintHeightPoints)));
    place.moveBottom(row.height());
    place = grid.nearest(place);
    const qreal line = grid.lineWidth(1);
    const qreal radius = scaled(hintRadiusPoints);
    QPen dashes(theme.edge, line, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({3, 3});
    painter.setPen(dashes);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius,
                            radius);
    painter.setFont(fontOfSize(hintTextPoints));
    painter.setPen(theme.text2);
    const qreal padding = scaled(hintPaddingPoints);
    const QRectF text = place.adjusted(padding, 0, -padding, 0);
    const QString shown =
        painter.fontMetrics().elidedText(sentence, Qt::ElideRight, qRound(text.width()));
    const Qt::Alignment atStart = QStyle::visualAlignment(row.layoutDirection(), Qt::AlignLeft);
    const int flags = static_cast<int>(atStart | Qt::AlignVCenter) | Qt::TextSingleLine;
    painter.drawText(text, flags, shown);
}

void paintLastColorsFocus(QPainter& painter, const QRectF& swatch, const ThemeColors& theme)
{
    const PixelGrid grid(painter);
    const qreal radius = swatchRadius();
    const qreal ring = grid.lineWidth(scaled(lastColorMarkPoints));
    // The colour may be that of the ring.
    const qreal gap = grid.lineWidth(1);
    paintSwatchLine(painter, swatch.adjusted(ring, ring, -ring, -ring), radius - ring, gap,
                    theme.base);
    paintSwatchLine(painter, swatch, radius, ring, theme.accent);
}

void paintLastColorsRule(QPainter& painter, const LastColorsPlaces& places,
                         const ThemeColors& theme)
{
    if (!places.rule) return;
    const PixelGrid grid(painter);
    QRectF rule = grid.nearest(*places.rule);
    rule.setWidth(grid.lineWidth(1));
    painter.fillRect(rule, theme.edge);
}

void paintLastColorsDropMark(QPainter& painter, const QWidget& row, const LastColorsPlaces& places,
                             std::size_t place, const ThemeColors& theme)
{
    const PixelGrid grid(painter);
    // After the colour before it: a rule may follow, which the mark must not be beyond.
    const QRectF neighbour = places.swatches[place == 0 ? 0 : place - 1];
    const bool isAtRight = (place == 0) == row.isRightToLeft();
    const qreal mark = grid.lineWidth(scaled(lastColorMarkPoints));
    const qreal x = isAtRight ? neighbour.right() + mark / 2 : neighbour.left() - 1.5 * mark;
    painter.fillRect(QRectF(grid.nearest(std::clamp(x, 0.0, row.width() - mark)),
                            neighbour.top() - mark, mark, neighbour.height() + 2 * mark),
                     theme.text);
}

}  // namespace vantorel
