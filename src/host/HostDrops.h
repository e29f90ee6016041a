#pragma once

#include "host/HostGeometry.h"
#include "host/HostPasteboard.h"

namespace vantorel {

/// A `HostViewContent` that takes what is dropped on its view derives from this class, too. A
/// desktop finds out by a `dynamic_cast` when it makes the view, so that contents that take no
/// drops, and plug-ins that do not know this class, need no change. Desktops without drops ignore
/// it.
class HostDropTarget {
public:
    HostDropTarget() = default;
    HostDropTarget(const HostDropTarget&) = delete;
    HostDropTarget& operator=(const HostDropTarget&) = delete;
    virtual ~HostDropTarget() = default;

    /// Whether something can be dropped at a point, in the view's coordinates. Called while a drag
    /// moves.
    [[nodiscard]] virtual bool takesDropAt(HostPoint point) const = 0;
    /// A colour or a text, which may be anything, was dropped where `takesDropAt` is true.
    virtual void takeDrop(const HostPasteboardItem& item, HostPoint point) = 0;
};

}  // namespace vantorel
