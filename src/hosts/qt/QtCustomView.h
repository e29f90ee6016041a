#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtView.h"

#include <QEventLoop>

#include <deque>

namespace vantorel {

/// A view that the core paints and that passes mouse and key events to it.
class QtCustomView final : public QtMirrored<HostCustomView> {
public:
    QtCustomView(const HostControlDescription& description, HostViewContent& content);

    std::intptr_t addTrackingRect(HostRect rect, bool assumeInside) override;
    void removeTrackingRect(std::intptr_t tag) override;

    /// Called by the panel, which knows whether mouse moves are wanted.
    void setAcceptsMouseMoved(bool flag) { _acceptsMouseMoved = flag; }

    /// Waits for the view's next mouse event of a type in `mask` while the program continues to
    /// run. Returns a left-mouse-up if none can come: the button is up, or the view or the program
    /// is about to end.
    [[nodiscard]] HostEvent nextMouseEvent(std::uint32_t mask);

    /// A drag-out has taken the button; its release will not come.
    void forgetButton();

private:
    class Widget;
    struct Tracking {
        std::intptr_t tag;
        HostRect rect;
        bool inside;
    };

    /// `showsFocus`: whether to mark the cell that the keys have reached.
    void paint(QPainter& painter, bool showsFocus);
    void press(const HostEvent& event);
    /// Passes a drag or release to the tracking loop that waits for it, else to the content.
    void continuePress(const HostEvent& event);
    void moveFreely(const HostEvent& event);
    void leave(const HostEvent& event);
    [[nodiscard]] HostEvent releaseAtLastPoint() const;

    HostViewContent& _content;
    std::optional<Tracking> _tracking;
    std::intptr_t _lastTag = 0;
    bool _acceptsMouseMoved = false;

    bool _buttonIsDown = false;
    bool _pressIsBeingHandled = false;
    HostPoint _lastPoint;
    std::deque<HostEvent> _waitingEvents;
    QPointer<QEventLoop> _waitingLoop;
};

}  // namespace vantorel
