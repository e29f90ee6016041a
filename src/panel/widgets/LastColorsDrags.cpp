#include "panel/widgets/LastColors.h"
#include "panel/widgets/Swatch.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace vantorel {

void LastColors::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    _pressedAt = event->position().toPoint();
    _pressed = indexAt(_pressedAt);
    if (_pressed >= 0) makeCurrent(_pressed);
}

void LastColors::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (_pressed < 0 || (at - _pressedAt).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    _dragged = colorAt(std::exchange(_pressed, -1));
    // The panel may be closed while the drag runs.
    const QPointer<LastColors> life(this);
    dragColor(*this, HostColor(*_dragged));
    if (life == nullptr) return;
    _dragged.reset();
    setDropPlace({});
}

void LastColors::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    const int released = indexAt(event->position().toPoint());
    const int pressed = std::exchange(_pressed, -1);
    if (released >= 0 && released == pressed) choose(released);
}

std::optional<std::size_t> LastColors::pinPlaceAt(QPointF point) const
{
    if (!_dragged || _pinned.empty()) return {};
    const std::size_t shownPins = std::min(_pinned.size(), _places.swatches.size());
    for (std::size_t i = 0; i < shownPins; ++i) {
        const QRectF& place = _places.swatches[i];
        // To the middle of a gap, so that every place within the pinned ones counts.
        if (!place.adjusted(-place.width() / 2, -2, place.width() / 2, 2).contains(point)) continue;
        const bool isBefore = (point.x() < place.center().x()) != isRightToLeft();
        return isBefore ? i : i + 1;
    }
    return {};
}

void LastColors::setDropPlace(std::optional<std::size_t> place)
{
    if (std::exchange(_dropPlace, place) != place) update();
}

void LastColors::dragEnterEvent(QDragEnterEvent* event)
{
    // Accepted as a whole: where the colour can be put is seen while it moves.
    if (_dragged && !_pinned.empty()) event->acceptProposedAction();
}

void LastColors::dragMoveEvent(QDragMoveEvent* event)
{
    setDropPlace(pinPlaceAt(event->position()));
    event->setAccepted(_dropPlace.has_value());
}

void LastColors::dragLeaveEvent(QDragLeaveEvent*)
{
    setDropPlace({});
}

void LastColors::dropEvent(QDropEvent* event)
{
    const auto place = pinPlaceAt(event->position());
    setDropPlace({});
    if (!place) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    std::vector<HostColor> pinned = _pinned;
    pinned.insert(pinned.begin() + static_cast<std::ptrdiff_t>(*place), *_dragged);
    // Its former place, if it was pinned, has moved if it is behind.
    for (std::size_t i = 0; i < pinned.size(); ++i) {
        if (i == *place || pinned[i] != *_dragged) continue;
        pinned.erase(pinned.begin() + static_cast<std::ptrdiff_t>(i));
        break;
    }
    if (pinned != _pinned) emit pinnedReordered(pinned);
}

}  // namespace vantorel
