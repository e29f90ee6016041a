#include "hosts/common/PointerTracking.h"

namespace vantorel {

std::intptr_t PointerTracking::addTrackingRect(HostRect rect, bool assumeInside)
{
    _tracking = Tracking{++_lastTag, rect, assumeInside};
    return _lastTag;
}

void PointerTracking::removeTrackingRect(std::intptr_t tag)
{
    if (_tracking && _tracking->tag == tag) _tracking.reset();
}

void PointerTracking::move(const HostEvent& event)
{
    if (!_tracking) return;
    const bool wasInside = _tracking->inside;
    const bool inside = _tracking->rect.contains(event.location);
    _tracking->inside = inside;
    if (inside && !wasInside) _content.mouseEntered(event);
    if (!inside && wasInside) _content.mouseExited(event);
    if (inside && _acceptsMouseMoved) _content.mouseMoved(event);
}

void PointerTracking::leave(const HostEvent& event)
{
    if (!_tracking || !_tracking->inside) return;
    _tracking->inside = false;
    _content.mouseExited(event);
}

}  // namespace vantorel
