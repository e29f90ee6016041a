#include "panel/widgets/LastColorsDrags.h"

#include "panel/widgets/LastColors.h"
#include "panel/widgets/Swatch.h"

#include <QApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace vantorel {

LastColorsDrags::LastColorsDrags(LastColors& row) : QObject(&row), _row(row)
{
    row.setAcceptDrops(true);
    row.installEventFilter(this);
}

bool LastColorsDrags::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            press(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseMove:
            move(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonRelease:
            release(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::DragEnter:
            // Accepted as a whole: where the colour can be put is seen while it moves.
            if (_dragged && !_row.order().pinned().empty()) {
                static_cast<QDragEnterEvent&>(*event).acceptProposedAction();
            }
            return true;
        case QEvent::DragMove:
            setDropPlace(placeAt(static_cast<QDragMoveEvent&>(*event).position()));
            event->setAccepted(_dropPlace.has_value());
            return true;
        case QEvent::DragLeave:
            setDropPlace({});
            return true;
        case QEvent::Drop:
            drop(static_cast<QDropEvent&>(*event));
            return true;
        default:
            return false;
    }
}

void LastColorsDrags::press(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) return;
    _pressedAt = event.position().toPoint();
    _pressed = _row.places().swatchAt(_pressedAt);
    if (_pressed >= 0) _row.makeCurrent(_pressed);
}

void LastColorsDrags::move(const QMouseEvent& event)
{
    const QPoint at = event.position().toPoint();
    if (_pressed < 0 || (at - _pressedAt).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    _dragged = _row.order().colorAt(std::exchange(_pressed, -1));
    // The panel may be closed while the drag runs.
    const QPointer<LastColorsDrags> life(this);
    dragColor(_row, HostColor(*_dragged));
    if (life == nullptr) return;
    _dragged.reset();
    setDropPlace({});
}

void LastColorsDrags::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) return;
    const int released = _row.places().swatchAt(event.position().toPoint());
    const int pressed = std::exchange(_pressed, -1);
    if (released >= 0 && released == pressed) _row.choose(released);
}

std::optional<std::size_t> LastColorsDrags::placeAt(QPointF point) const
{
    if (!_dragged) return {};
    const std::vector<QRectF>& swatches = _row.places().swatches;
    const std::size_t shownPins = std::min(_row.order().pinned().size(), swatches.size());
    for (std::size_t i = 0; i < shownPins; ++i) {
        const QRectF& place = swatches[i];
        // To the middle of a gap, so that every place within the pinned ones counts.
        if (!place.adjusted(-place.width() / 2, -2, place.width() / 2, 2).contains(point)) continue;
        const bool isBefore = (point.x() < place.center().x()) != _row.isRightToLeft();
        return isBefore ? i : i + 1;
    }
    return {};
}

void LastColorsDrags::setDropPlace(std::optional<std::size_t> place)
{
    if (std::exchange(_dropPlace, place) != place) _row.update();
}

void LastColorsDrags::drop(QDropEvent& event)
{
    const auto place = placeAt(event.position());
    setDropPlace({});
    if (!place) {
        event.ignore();
        return;
    }
    event.acceptProposedAction();
    const auto pinned = _row.order().pinnedAfterDropping(*_dragged, *place);
    if (pinned != _row.order().pinned()) emit _row.pinnedReordered(pinned);
}

}  // namespace vantorel
