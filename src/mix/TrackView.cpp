#include "mix/TrackView.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr double trackThickness = 12;
constexpr double barThickness = 20;
constexpr double roundMark = 20;
constexpr double barMarkHeight = 11;
/// Between the ends of a track and the middle of the mark there.
constexpr double inset = 6;
/// What the mark needs beyond the ends of a track.
constexpr double beyondEnds = 4;

}  // namespace

TrackView::TrackView(Direction direction, MarkDragListener& listener, Actions actions)
    : MarkView(listener), _direction(direction), _actions(std::move(actions))
{
}

void TrackView::show(double fraction, const ColorTriple& fill, TrackColors colors)
{
    _fraction = std::clamp(fraction, 0.0, 1.0);
    _fill = fill;
    _colors = std::move(colors);
    _picture.reset();
    view().setNeedsDisplay(true);
}

HostRect TrackView::trackPlace() const
{
    const HostRect bounds = view().bounds();
    if (_direction == Direction::toRight) {
        return {bounds.x + beyondEnds, bounds.midY() - trackThickness / 2,
                std::max(0.0, bounds.width - 2 * beyondEnds), trackThickness};
    }
    return {bounds.midX() - barThickness / 2, bounds.y + beyondEnds, barThickness,
            std::max(0.0, bounds.height - 2 * beyondEnds)};
}

HostSize TrackView::markSize() const
{
    if (_direction == Direction::toRight) return {roundMark, roundMark};
    return {view().bounds().width, barMarkHeight};
}

HostRect TrackView::markPlace() const
{
    const HostRect track = trackPlace();
    const HostSize size = markSize();
    if (_direction == Direction::toRight) {
        const double x = track.x + inset + (track.width - 2 * inset) * _fraction;
        return {x - size.width / 2, track.midY() - size.height / 2, size.width, size.height};
    }
    const double y = track.y + inset + (track.height - 2 * inset) * _fraction;
    return {track.midX() - size.width / 2, y - size.height / 2, size.width, size.height};
}

void TrackView::drawRect(HostCanvas& canvas)
{
    const HostRect track = trackPlace();
    const HostPixelSize size = canvas.pixelSizeOf(track);
    if (!_colors || size.width == 0 || size.height == 0) return;
    const PixelLook look = lookOf(canvas, track);
    if (!_picture || _picture->size() != size || look != _look) {
        _look = look;
        _picture =
            trackPicture(size, _direction == Direction::upwards, inset * look.scale, look, _colors);
    }
    canvas.drawPixels(*_picture, track);
    const HostRect mark = markPlace();
    canvas.drawPixels(markPicture(canvas.pixelSizeOf(mark), look.scale, pixelOf(_fill)), mark);
}

void TrackView::moveMarkTo(HostPoint at)
{
    const HostRect track = trackPlace();
    const bool isUpwards = _direction == Direction::upwards;
    const double room = (isUpwards ? track.height : track.width) - 2 * inset;
    if (room <= 0) return;
    const double along = isUpwards ? at.y - track.y : at.x - track.x;
    const double fraction = std::clamp((along - inset) / room, 0.0, 1.0);
    if (fraction != _fraction) _actions.move(fraction);
}

bool TrackView::scrollWheel(const HostScrollEvent& event)
{
    _actions.step(event.steps, event.modifierFlags);
    return true;
}

bool TrackView::moveMarkBy(const HostKeyEvent& event)
{
    switch (event.key) {
        case HostKey::left:
        case HostKey::down:
            _actions.step(-1, event.modifierFlags);
            return true;
        case HostKey::right:
        case HostKey::up:
            _actions.step(1, event.modifierFlags);
            return true;
        case HostKey::pageDown:
            _actions.step(-1, shiftModifierFlag);
            return true;
        case HostKey::pageUp:
            _actions.step(1, shiftModifierFlag);
            return true;
        case HostKey::home:
            _actions.move(0);
            return true;
        case HostKey::end:
            _actions.move(1);
            return true;
        case HostKey::pick:
            break;
    }
    return false;
}

}  // namespace vantorel
