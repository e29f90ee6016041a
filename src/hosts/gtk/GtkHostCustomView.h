#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/common/FocusMarks.h"
#include "hosts/common/MouseTurn.h"
#include "hosts/common/PointerTracking.h"
#include "hosts/common/WheelSteps.h"
#include "hosts/gtk/GtkHostView.h"

namespace vantorel {

/// A view that the core paints and that passes mouse and key events to it. Its widget is a box: the
/// painted area, with the view's controls above it.
class GtkHostCustomView final : public GtkMirrored<HostCustomView> {
public:
    GtkHostCustomView(const HostControlDescription& description, HostViewContent& content);

    [[nodiscard]] GtkWidget* activeWidget() const override { return _area.get(); }

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
    /// See `MouseTurn::breakOff`.
    void endPress() { _turn.breakOff(); }
    /// The event with which a drag out of the view can begin; null if there was none.
    [[nodiscard]] GdkEvent* lastButtonEvent() const { return _lastButtonEvent.get(); }

private:
    void connectMouse();
    void connectKeys();
    void paint(cairo_t* cairo);
    void paintContent(cairo_t* cairo, bool showsFocus);
    void press(const GdkEventButton& event);
    void move(const GdkEventMotion& event);
    void focusCame();
    bool takeKey(const GdkEventKey& event);
    void redraw();
    void reportDescription();
    [[nodiscard]] HostEvent hostEvent(HostEventType type, double x, double y, guint state) const;

    HostViewContent& _content;
    GtkWeakWidget _area;
    PointerTracking _tracking;
    MouseTurn _turn;
    FocusMarks _marks;
    WheelSteps _wheelSteps;
    /// Whether the focus that comes next is given by a click.
    bool _isClickingIn = false;
    GdkEventCopy _lastButtonEvent;
    std::string _reportedDescription;
};

}  // namespace vantorel
