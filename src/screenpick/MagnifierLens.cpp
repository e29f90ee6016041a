#include "screenpick/MagnifierLens.h"

#include "screenpick/MagnifierNotes.h"
#include "screenpick/MagnifierPainting.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>

namespace vantorel {
namespace {

// In device-independent pixels.
constexpr std::array cellSizes{5, 7, 10, 14, 20, 28};
constexpr double lensRadius = 84;
constexpr double ringWidth = 4;
constexpr double shadowWidth = 10;
constexpr double labelGap = 8;
constexpr double labelHeight = 28;
constexpr double labelHeightWithName = 44;
/// As wide as the longest name of a colour of CSS.
constexpr int longestName = 20;
/// Where the name's line begins, as a part of the label's height.
constexpr double nameBegin = 0.56;
constexpr double labelPadding = 10;
constexpr double averageGap = 8;
constexpr double swatchSize = 14;
constexpr double textSize = 14;
constexpr double averageTextSize = 11;
constexpr double markRadius = 6;

constexpr int smallestCellWithGrid = 7;

QFont labelFont(double ratio)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(static_cast<int>(std::lround(textSize * ratio)));
    return font;
}

QFont averageFont(double ratio)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(static_cast<int>(std::lround(averageTextSize * ratio)));
    return font;
}

/// The size of what is averaged; empty for a single pixel.
QString averageText(const Magnified& magnified)
{
    if (!magnified.isAverage()) return {};
    const QSize size = magnified.averaged.size();
    return QStringLiteral("%1\u00d7%2").arg(size.width()).arg(size.height());
}

/// Returns the offset that moves `rect` into 0..`size`. If it is too large, its top left corner is
/// moved inside.
QPoint wayInto(const QRectF& rect, QSize size)
{
    const auto way = [](double begin, double end, double limit) {
        const double back = std::floor(std::min(limit - end, 0.0));
        return static_cast<int>(back + std::ceil(std::max(-(begin + back), 0.0)));
    };
    return {way(rect.left(), rect.right(), size.width()),
            way(rect.top(), rect.bottom(), size.height())};
}

void paintShadow(QPainter& painter, QPointF center, double radius, double ratio)
{
    const double outer = radius + shadowWidth * ratio;
    QRadialGradient shadow(center, outer);
    shadow.setColorAt(radius / outer * 0.96, QColor(0, 0, 0, 90));
    shadow.setColorAt(1, Qt::transparent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawEllipse(center, outer, outer);
}

void strokeCircle(QPainter& painter, QPointF center, double radius, double width,
                  const QColor& color)
{
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(center, radius, radius);
}

/// A frame that is visible on every colour, because it is both black and white.
void frameCells(QPainter& painter, const QRect& cells, int width)
{
    const QRect white = cells.adjusted(-width, -width, width, width);
    const QRect black = white.adjusted(-width, -width, width, width);
    const QRegion around = QRegion(black).subtracted(cells);
    for (const QRect& rect : around)
        painter.fillRect(rect, Qt::black);
    for (const QRect& rect : QRegion(white).subtracted(cells))
        painter.fillRect(rect, Qt::white);
}

}  // namespace

struct MagnifierLens::Layout {
    QRect middleCell;
    QPointF center;
    QRectF label;
    /// Where the size of the average begins in the label.
    double averageLeft = 0;
    /// Empty if there are none.
    QRectF notes;
    QPointF mark;
    /// Whether the lens has been moved away from the pixel.
    bool displaced = false;
};

QString hexCodeOf(const QColor& color)
{
    return color.name(QColor::HexRgb);
}

void MagnifierLens::zoom(int steps)
{
    _zoom = std::clamp(_zoom + steps, 0, static_cast<int>(cellSizes.size()) - 1);
}

MagnifierLens::Layout MagnifierLens::layOut(const DesktopPicture::Screen& picture,
                                            const Magnified& magnified, double ratio) const
{
    const QSize screen = picture.image.size();
    const QPoint pixel = magnified.pixel - picture.origin;
    const int cell =
        static_cast<int>(std::lround(cellSizes[static_cast<std::size_t>(_zoom)] * ratio));
    const double radius = (lensRadius + ringWidth) * ratio;
    const QFontMetrics metrics(labelFont(ratio));
    const double codeEnd = (2 * labelPadding + swatchSize) * ratio +
                           metrics.horizontalAdvance(QStringLiteral("#000000"));
    double labelWidth = codeEnd + labelPadding * ratio;
    if (const QString average = averageText(magnified); !average.isEmpty()) {
        labelWidth +=
            averageGap * ratio + QFontMetrics(averageFont(ratio)).horizontalAdvance(average);
    }

    if (magnified.hasName) {
        const double nameEnd =
            (2 * labelPadding + swatchSize) * ratio +
            QFontMetrics(averageFont(ratio)).horizontalAdvance(QString(longestName, u'm'));
        labelWidth = std::max(labelWidth, nameEnd + labelPadding * ratio);
    }
    const double height = magnified.hasName ? labelHeightWithName : labelHeight;

    Layout layout;
    layout.middleCell = QRect(pixel.x() - cell / 2, pixel.y() - cell / 2, cell, cell);
    layout.center = QPointF(layout.middleCell.topLeft()) + QPointF(cell, cell) / 2;
    layout.label = QRectF(std::round(layout.center.x() - labelWidth / 2),
                          std::round(layout.center.y() + radius + labelGap * ratio),
                          std::round(labelWidth), std::round(height * ratio));
    const QRectF lens(layout.center - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    const double margin = std::round(ringWidth * ratio);
    const QPoint way =
        wayInto(lens.united(layout.label).adjusted(-margin, -margin, margin, margin), screen);
    layout.middleCell.translate(way);
    layout.center += way;
    layout.label.translate(way);
    layout.mark = QPointF(pixel) + QPointF(0.5, 0.5);
    layout.displaced = !way.isNull();
    layout.averageLeft = layout.label.left() + codeEnd + averageGap * ratio;

    const QSizeF notes = sizeOfNotes(magnified, ratio);
    if (notes.isEmpty()) return layout;
    const double gap = labelGap * ratio;
    layout.notes = QRectF(
        QPointF(std::round(layout.center.x() - notes.width() / 2), layout.label.bottom() + gap),
        notes);
    if (layout.notes.bottom() + margin > screen.height())
        layout.notes.moveBottom(std::floor(layout.center.y() - radius - gap));
    layout.notes.translate(wayInto(layout.notes.adjusted(-margin, 0, margin, 0), screen).x(), 0);
    return layout;
}

QRect MagnifierLens::bounds(const DesktopPicture::Screen& screen, const Magnified& magnified,
                            double ratio) const
{
    const Layout layout = layOut(screen, magnified, ratio);
    const double reach = (lensRadius + ringWidth + shadowWidth) * ratio;
    QRectF all(layout.center - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach));
    all |= layout.label;
    if (!layout.notes.isEmpty()) all |= layout.notes;
    if (layout.displaced) {
        const double markReach = 2 * markRadius * ratio;
        all |= QRectF(layout.mark - QPointF(markReach, markReach),
                      QSizeF(2 * markReach, 2 * markReach));
    }
    // The label's edge is a line around it.
    return all.adjusted(-ratio, -ratio, ratio, ratio).toAlignedRect().adjusted(-1, -1, 1, 1);
}

QImage MagnifierLens::enlarged(const DesktopPicture& picture, QPoint middle, Cells size,
                               const QPalette& palette)
{
    const auto [cell, cells, gridWidth] = size;
    // A grey that is visible on black and on white.
    const QColor gridColor(128, 128, 128, 70);
    QImage image(cells * cell, cells * cell, QImage::Format_RGB32);
    QPainter painter(&image);
    const QPoint first = middle - QPoint(cells / 2, cells / 2);
    for (int row = 0; row < cells; ++row) {
        for (int column = 0; column < cells; ++column) {
            const QRect rect(column * cell, row * cell, cell, cell);
            if (const auto color = picture.colorAt(first + QPoint(column, row))) {
                painter.fillRect(rect, *color);
                painter.fillRect(rect.x(), rect.y(), cell, gridWidth, gridColor);
                painter.fillRect(rect.x(), rect.y() + gridWidth, gridWidth, cell - gridWidth,
                                 gridColor);
            } else {
                // Beyond the desktop.
                painter.fillRect(rect, palette.color(QPalette::Window));
                painter.fillRect(rect, QBrush(faintTextOf(palette), Qt::BDiagPattern));
            }
        }
    }
    return image;
}

void MagnifierLens::paint(QPainter& painter, const DesktopPicture& picture,
                          const DesktopPicture::Screen& screen, const Magnified& magnified,
                          double ratio, const QPalette& palette) const
{
    const Layout layout = layOut(screen, magnified, ratio);
    const int cell = layout.middleCell.width();
    const double radius = lensRadius * ratio;
    const int line = std::max(1, static_cast<int>(ratio));
    const QColor ground = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (layout.displaced) {
        strokeCircle(painter, layout.mark, markRadius * ratio, 3 * ratio, Qt::black);
        strokeCircle(painter, layout.mark, markRadius * ratio, 1.5 * ratio, Qt::white);
    }
    paintShadow(painter, layout.center, radius + ringWidth * ratio, ratio);

    // An odd number, so that there is a middle.
    const int cells = static_cast<int>(std::ceil(radius / cell - 0.5)) * 2 + 1;
    const bool hasGrid = cellSizes[static_cast<std::size_t>(_zoom)] >= smallestCellWithGrid;
    QImage pixels = enlarged(picture, magnified.pixel, {cell, cells, hasGrid ? line : 0}, palette);
    {
        QPainter onPixels(&pixels);
        if (!magnified.isAverage()) {
            // Without the lines of the grid.
            const QRect middle(cells / 2 * cell, cells / 2 * cell, cell, cell);
            onPixels.fillRect(middle, magnified.color);
        }
        const QPoint first = magnified.pixel - QPoint(cells / 2, cells / 2);
        const QRect averaged = magnified.averaged.translated(-first);
        frameCells(onPixels,
                   {averaged.x() * cell, averaged.y() * cell, averaged.width() * cell,
                    averaged.height() * cell},
                   line);
    }
    QBrush brush(pixels);
    const QPoint origin = layout.middleCell.topLeft() - QPoint(cells / 2, cells / 2) * cell;
    brush.setTransform(QTransform::fromTranslate(origin.x(), origin.y()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(layout.center, radius, radius);

    strokeCircle(painter, layout.center, radius + ringWidth * ratio / 2, (ringWidth + 2) * ratio,
                 magnifierEdge(palette));
    strokeCircle(painter, layout.center, radius + ringWidth * ratio / 2, ringWidth * ratio, ground);

    paintPill(painter, layout.label, ratio, palette);
    const QRectF swatch(layout.label.left() + labelPadding * ratio,
                        layout.label.center().y() - swatchSize * ratio / 2, swatchSize * ratio,
                        swatchSize * ratio);
    painter.setPen(QPen(faintTextOf(palette), ratio));
    painter.setBrush(magnified.color);
    painter.drawEllipse(swatch);
    painter.setPen(text);
    painter.setFont(labelFont(ratio));
    QRectF textRect(QPointF(swatch.right() + labelPadding * ratio, layout.label.top()),
                    layout.label.bottomRight());
    QRectF nameRect = textRect;
    if (magnified.hasName) {
        const double middle = std::round(layout.label.height() * nameBegin);
        textRect.setBottom(layout.label.top() + middle);
        nameRect.setTop(textRect.bottom());
        nameRect.setBottom(layout.label.bottom() - labelGap * ratio / 2);
    }
    painter.drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft, hexCodeOf(magnified.color));
    if (const QString average = averageText(magnified); !average.isEmpty()) {
        painter.setFont(averageFont(ratio));
        const QRectF rest(QPointF(layout.averageLeft, textRect.top()), textRect.bottomRight());
        painter.drawText(rest, Qt::AlignVCenter | Qt::AlignLeft, average);
    }
    if (!magnified.name.isEmpty()) {
        const QFont font = averageFont(ratio);
        painter.setFont(font);
        painter.drawText(nameRect, Qt::AlignVCenter | Qt::AlignLeft,
                         QFontMetrics(font).elidedText(magnified.name, Qt::ElideRight,
                                                       static_cast<int>(nameRect.width())));
    }
    paintNotes(painter, layout.notes, magnified, ratio, palette);
    painter.restore();
}

}  // namespace vantorel
