#pragma once

#include "host/HostControls.h"
#include "host/HostDrops.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/common/MouseTurn.h"
#include "hosts/common/PointerTracking.h"
#include "hosts/qt/QtView.h"

namespace vantorel {

/// A view that the core paints and that passes mouse and key events to it.
class QtCustomView final : public QtMirrored<HostCustomView> {
public:
    QtCustomView(const HostControlDescription& description, HostViewContent& content);

    std::intptr_t addTrackingRect(HostRect rect, bool assumeInside) override
    {
        return _tracking.addTrackingRect(rect, assumeInside);
    }
    void removeTrackingRect(std::intptr_t tag) override { _tracking.removeTrackingRect(tag); }

    /// Called by the panel, which knows whether mouse moves are wanted.
    void setAcceptsMouseMoved(bool flag) { _tracking.setAcceptsMouseMoved(flag); }

    /// See `MouseTurn::nextEvent`.
    [[nodiscard]] HostEvent nextMouseEvent(std::uint32_t mask);
    /// See `MouseTurn::forgetButton`.
    void forgetButton() { _turn.forgetButton(); }

protected:
    void groundColorDidChange() override;

private:
    class Widget;

    /// `showsFocus`: whether to mark the cell that the keys have reached.
    void paint(QPainter& painter, bool showsFocus);

    HostViewContent& _content;
    /// Null if nothing can be dropped on the content.
    HostDropTarget* _drops;
    PointerTracking _tracking;
    MouseTurn _turn;
};

}  // namespace vantorel
