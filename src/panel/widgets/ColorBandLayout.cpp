#include "panel/widgets/ColorBandLayout.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"

#include <QFontMetricsF>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int sampleFontPoints = 12;
constexpr int sampleLinePoints = 28;
constexpr int sampleGapPoints = 4;
constexpr int chipMarginPoints = 3;
constexpr int swapRadiusPoints = 13;

/// The background's width in points. The colour is the wider half.
int backgroundPoints(double bandPoints)
{
    if (bandPoints >= 256) return 116;
    return bandPoints >= 200 ? 112 : 64;
}

/// Puts the sample above the chip. The room that is left goes below them, where the mark of the
/// edited half is, then between them and above.
void stack(ColorBandLayout& layout, const QRectF& room)
{
    const QSizeF chip = layout.chip.size();
    const qreal left = room.height() - layout.sample.height() - chip.height();
    const qreal below = std::min<qreal>(0.6 * left, scaled(14));
    const qreal above = std::min<qreal>(0.75 * (left - below), scaled(14));
    layout.sample.moveTop(room.top() + above);
    layout.sample.moveLeft(room.center().x() - layout.sample.width() / 2);
    layout.chipTopLeft = {room.center().x() - chip.width() / 2,
                          room.bottom() - below - chip.height()};
}

/// Puts the sample and the chip, if there is one, beside each other.
void line(ColorBandLayout& layout, const QRectF& room)
{
    const QSizeF chip = layout.chip.size();
    const qreal gap = chip.isEmpty() ? 0 : scaled(sampleGapPoints);
    layout.sample.moveTop(room.center().y() - layout.sample.height() / 2);
    layout.sample.moveLeft(room.center().x() - (layout.sample.width() + gap + chip.width()) / 2);
    layout.chipTopLeft = {layout.sample.right() + gap, room.center().y() - chip.height() / 2};
}

void mirror(ColorBandLayout& layout, int width)
{
    layout.color.moveLeft(width - layout.color.x() - layout.color.width());
    layout.background.moveLeft(width - layout.background.x() - layout.background.width());
    layout.swapCenter.setX(width - layout.swapCenter.x());
    layout.sample.moveLeft(width - layout.sample.right());
    layout.chipTopLeft.setX(width - layout.chipTopLeft.x() - layout.chip.size().width());
}

}  // namespace

ColorBandLayout layoutOfBand(QSize size, std::optional<double> contrast,
                             Qt::LayoutDirection direction)
{
    ColorBandLayout layout;
    const int points = backgroundPoints(size.width() / textScale());
    const int seam = size.width() - scaled(points);
    layout.color = QRect(0, 0, seam, size.height());
    layout.background = QRect(seam, 0, size.width() - seam, size.height());

    layout.sampleFont = fontOfSize(sampleFontPoints);
    layout.sampleFont.setBold(true);
    const QFontMetricsF metrics(layout.sampleFont);
    const qreal width = metrics.horizontalAdvance(QStringLiteral("Aa"));
    const qreal sampleHeight = scaled(sampleLinePoints);
    layout.sample.setSize({ColorBandLayout::sampleScale * width, sampleHeight});

    const QRectF whole(layout.background);
    const bool isLow = size.height() < sampleHeight + ContrastChip::height() + scaled(6);
    const bool hasChip = contrast.has_value() && points > 64;
    // Beside the button on the seam.
    const QRectF beside =
        whole.adjusted(scaled(swapRadiusPoints + sampleGapPoints), 0, -scaled(sampleGapPoints), 0);
    if (hasChip) {
        const qreal room = isLow ? beside.width() - layout.sample.width() - scaled(sampleGapPoints)
                                 : whole.width() - 2 * scaled(chipMarginPoints);
        layout.chip = ContrastChip(*contrast, room);
    }
    if (layout.chip.size().isEmpty() || isLow) {
        line(layout, beside);
    } else {
        stack(layout, whole);
    }
    layout.swapCenter = {seam, qRound(layout.sample.center().y())};
    if (direction == Qt::RightToLeft) mirror(layout, size.width());
    return layout;
}

}  // namespace vantorel
