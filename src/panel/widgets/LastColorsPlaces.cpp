#include "panel/widgets/LastColorsPlaces.h"

#include "hosts/qt/TextScale.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr int swatchPoints = 20;
constexpr int swatchGapPoints = 4;
constexpr int menuButtonPoints = 24;
/// What the rule adds to the gap that it is in.
constexpr int rulePoints = 11;

int swatchesIn(int width)
{
    const int gap = scaled(swatchGapPoints);
    return std::max(0, (width + gap) / (scaled(swatchPoints) + gap));
}

/// One row, with the button at its end.
LastColorsPlaces row(QSize size, std::size_t pinned, std::size_t others)
{
    LastColorsPlaces places;
    const int gap = scaled(swatchGapPoints);
    const int side = scaled(swatchPoints);
    const int buttonSide = scaled(menuButtonPoints);
    places.button =
        QRect(size.width() - buttonSide, (size.height() - buttonSide) / 2, buttonSide, buttonSide);
    const int room = places.button.x() - gap;
    const int extra = pinned > 0 && others > 0 ? scaled(rulePoints) : 0;
    const int capacity = swatchesIn(room - extra);
    if (capacity == 0) return places;
    const auto shown = std::min(static_cast<std::size_t>(capacity), pinned + others);
    const qreal width = qreal(room - extra - (capacity - 1) * gap) / capacity;
    const int top = (size.height() - side) / 2;
    qreal x = 0;
    for (std::size_t i = 0; i < shown; ++i) {
        if (extra > 0 && i == pinned) {
            places.rule = QRectF(x + (extra - gap - 1) / 2.0, top, 1, side);
            x += extra;
        }
        places.swatches.emplace_back(x, top, width, side);
        x += width + gap;
    }
    places.columns = static_cast<int>(std::max<std::size_t>(shown, 1));
    return places;
}

/// Rows at the lower edge. The button has the last place of the last row.
LastColorsPlaces grid(QSize size, int rows, std::size_t pinned, std::size_t others)
{
    LastColorsPlaces places;
    const int gap = scaled(swatchGapPoints);
    const int side = scaled(swatchPoints);
    places.columns = std::max(1, swatchesIn(size.width()));
    const qreal width = qreal(size.width() - (places.columns - 1) * gap) / places.columns;
    const int top = size.height() - rows * (side + gap) + gap;
    const auto placeAt = [&](int index) {
        const int row = index / places.columns;
        return QRectF((index % places.columns) * (width + gap), top + row * (side + gap), width,
                      side);
    };
    const int last = rows * places.columns - 1;
    places.button = QRect(QPoint(), QSize(1, 1) * scaled(menuButtonPoints));
    places.button.moveCenter(placeAt(last).center().toPoint());
    places.button.moveRight(size.width() - 1);
    places.button.moveBottom(std::min(places.button.bottom(), size.height() - 1));
    const auto shown = std::min(static_cast<std::size_t>(last), pinned + others);
    for (std::size_t i = 0; i < shown; ++i)
        places.swatches.push_back(placeAt(static_cast<int>(i)));
    // The gap has the room of a thin rule, so that the columns remain columns.
    if (pinned > 0 && pinned < shown && pinned % static_cast<std::size_t>(places.columns) != 0) {
        const QRectF first = places.swatches[pinned];
        places.rule = QRectF(first.x() - (gap + 1) / 2.0, first.y(), 1, side);
    }
    return places;
}

}  // namespace

int LastColorsPlaces::swatchAt(QPointF point) const
{
    const qreal around = scaled(swatchGapPoints) / 2.0;
    for (std::size_t i = 0; i < swatches.size(); ++i) {
        if (swatches[i].adjusted(-around, -around, around, around).contains(point)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

LastColorsPlaces placesOfLastColors(QSize size, std::size_t pinned, std::size_t others,
                                    Qt::LayoutDirection direction)
{
    const int rows = swatchesIn(size.height());
    LastColorsPlaces places =
        rows > 1 ? grid(size, rows, pinned, others) : row(size, pinned, others);
    if (direction == Qt::LeftToRight) return places;
    const auto mirror = [&](auto& place) {
        place.moveLeft(size.width() - place.x() - place.width());
    };
    for (QRectF& place : places.swatches)
        mirror(place);
    if (places.rule) mirror(*places.rule);
    mirror(places.button);
    return places;
}

}  // namespace vantorel
