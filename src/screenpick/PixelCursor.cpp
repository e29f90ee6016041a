#include "screenpick/PixelCursor.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

QPoint nearestIn(const QRect& rect, QPoint point)
{
    return {std::clamp(point.x(), rect.left(), rect.right()),
            std::clamp(point.y(), rect.top(), rect.bottom())};
}

int sign(int value)
{
    return (value > 0) - (value < 0);
}

}  // namespace

PixelCursor::PixelCursor(std::vector<QRect> screens, QPoint mouse)
    : _screens(std::move(screens)), _mouse(mouse), _position(nearestOnScreen(mouse))
{
}

void PixelCursor::mouseMovedTo(QPoint mouse)
{
    const QPoint way = mouse - _mouse;
    QPoint target = _position + way;
    // At an edge the pointer stops. The cursor joins it there, because otherwise the mouse could
    // not reach a part of the screen.
    if (isStuck(mouse, {sign(way.x()), 0})) target.setX(mouse.x());
    if (isStuck(mouse, {0, sign(way.y())})) target.setY(mouse.y());
    _mouse = mouse;
    _position = nearestOnScreen(target);
}

void PixelCursor::step(QPoint by)
{
    const QPoint target = _position + by;
    if (isOnScreen(target)) {
        _position = target;
        return;
    }
    // If the next screen begins further away, or there is none, go to the last pixel before the
    // gap.
    const QPoint one(sign(by.x()), sign(by.y()));
    while (_position != target && isOnScreen(_position + one))
        _position += one;
}

bool PixelCursor::isOnScreen(QPoint point) const
{
    return std::any_of(_screens.begin(), _screens.end(),
                       [point](const QRect& screen) { return screen.contains(point); });
}

QPoint PixelCursor::nearestOnScreen(QPoint point) const
{
    const auto distance = [point](const QRect& screen) {
        const QPoint way = nearestIn(screen, point) - point;
        return QPoint::dotProduct(way, way);
    };
    const auto nearest =
        std::min_element(_screens.begin(), _screens.end(),
                         [&](const QRect& a, const QRect& b) { return distance(a) < distance(b); });
    return nearestIn(*nearest, point);
}

bool PixelCursor::isStuck(QPoint mouse, QPoint direction) const
{
    return !direction.isNull() && isOnScreen(mouse) && !isOnScreen(mouse + direction);
}

}  // namespace vantorel
