#include "hosts/common/MouseTurn.h"

#include <utility>

namespace vantorel {

MouseTurn::~MouseTurn()
{
    if (_wait != nullptr) _wait->end();
}

void MouseTurn::press(const HostEvent& event)
{
    if (_pressIsBeingHandled) return;
    const std::weak_ptr<const bool> life = _life;
    _buttonIsDown = true;
    _lastPoint = event.location;
    _events.clear();
    _pressIsBeingHandled = true;
    _content.mouseDown(event);
    if (life.expired()) return;
    _pressIsBeingHandled = false;
    // The button may have been released while the content was handling the press, without waiting.
    for (const HostEvent& waiting : std::exchange(_events, {})) {
        if (waiting.type != HostEventType::leftMouseUp) continue;
        _content.mouseUp(waiting);
        return;
    }
}

void MouseTurn::proceed(const HostEvent& event)
{
    _lastPoint = event.location;
    const bool wasDown = _buttonIsDown;
    const bool released = event.type == HostEventType::leftMouseUp;
    if (released) _buttonIsDown = false;
    if (_pressIsBeingHandled) {
        // The current position of the pointer matters more than its path.
        if (!released && !_events.empty() && _events.back().type == event.type) {
            _events.back() = event;
        } else {
            _events.push_back(event);
        }
        if (_wait != nullptr) _wait->end();
    } else if (!wasDown) {
        return;
    } else if (released) {
        _content.mouseUp(event);
    } else {
        _content.mouseDragged(event);
    }
}

void MouseTurn::breakOff()
{
    if (_buttonIsDown) proceed(releaseAtLastPoint());
}

void MouseTurn::forgetButton()
{
    _buttonIsDown = false;
    _events.clear();
}

HostEvent MouseTurn::releaseAtLastPoint() const
{
    return {HostEventType::leftMouseUp, _lastPoint, 0};
}

HostEvent MouseTurn::nextEvent(std::uint32_t mask, MouseWait& wait)
{
    const HostEvent release = releaseAtLastPoint();
    const std::weak_ptr<const bool> life = _life;
    while (true) {
        while (!_events.empty()) {
            const HostEvent event = _events.front();
            _events.pop_front();
            if ((maskOfEventType(event.type) & mask) != 0) return event;
        }
        if (!_buttonIsDown) return releaseAtLastPoint();
        _wait = &wait;
        wait.run();
        if (life.expired()) return release;
        _wait = nullptr;
        // The loop was ended from elsewhere, because the program is about to exit.
        if (_events.empty()) return releaseAtLastPoint();
    }
}

}  // namespace vantorel
