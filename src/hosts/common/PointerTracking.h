#pragma once

#include "host/HostControls.h"

#include <optional>

namespace vantorel {

/// The free pointer over a hand-painted view: crossings of its tracking rectangle, and moves inside
/// it while the panel wants them.
class PointerTracking {
public:
    /// `content` must outlive this object.
    explicit PointerTracking(HostViewContent& content) : _content(content) {}

    /// For `HostCustomView`: a new tracking rectangle replaces the last one.
    std::intptr_t addTrackingRect(HostRect rect, bool assumeInside);
    void removeTrackingRect(std::intptr_t tag);
    /// Whether the panel accepts mouse-moved events.
    void setAcceptsMouseMoved(bool flag) { _acceptsMouseMoved = flag; }

    /// The pointer is at a place of the view, with no button down.
    void move(const HostEvent& event);
    /// The pointer has left the view.
    void leave(const HostEvent& event);

private:
    struct Tracking {
        std::intptr_t tag;
        HostRect rect;
        bool inside;
    };

    HostViewContent& _content;
    std::optional<Tracking> _tracking;
    std::intptr_t _lastTag = 0;
    bool _acceptsMouseMoved = false;
};

}  // namespace vantorel
