#pragma once

#include "host/HostControls.h"

#include <deque>
#include <memory>

namespace vantorel {

/// Lets a program run on while a content waits for the mouse: an event loop of the toolkit.
class MouseWait {
public:
    virtual ~MouseWait() = default;
    /// Runs the program until `end` is called, or until the program is about to exit.
    virtual void run() = 0;
    virtual void end() = 0;
};

/// One turn of the left button in a hand-painted view, from press to release. The content may
/// handle it event by event, or wait for the events in a loop of its own (`nextEvent`) while it
/// handles the press.
///
/// The view may be destroyed in the middle of a turn, by what its content does or while it waits.
class MouseTurn {
public:
    /// `content` must outlive this object.
    explicit MouseTurn(HostViewContent& content) : _content(content) {}
    MouseTurn(const MouseTurn&) = delete;
    MouseTurn& operator=(const MouseTurn&) = delete;
    /// Ends the content's loop.
    ~MouseTurn();

    // Called by the view's widget.

    /// The button has been pressed. Ignored while an earlier press is being handled.
    void press(const HostEvent& event);
    /// Passes a drag or the release to the loop that waits for it, else to the content.
    void proceed(const HostEvent& event);
    /// Another widget gets the release, or the view is hidden: releases the button at its last
    /// place.
    void breakOff();
    /// A drag-out has taken the button; its release will not come.
    void forgetButton();

    /// Waits for the next event of a type in `mask`, for `HostColorPanel::nextEventMatchingMask`.
    /// Returns a left-mouse-up at the last place if none can come: the button is up, or the view or
    /// the program is about to end. Events of other types are dropped.
    [[nodiscard]] HostEvent nextEvent(std::uint32_t mask, MouseWait& wait);

private:
    [[nodiscard]] HostEvent releaseAtLastPoint() const;

    HostViewContent& _content;
    bool _buttonIsDown = false;
    bool _pressIsBeingHandled = false;
    HostPoint _lastPoint;
    std::deque<HostEvent> _events;
    MouseWait* _wait = nullptr;
    /// Expires with this object.
    std::shared_ptr<const bool> _life = std::make_shared<bool>(true);
};

}  // namespace vantorel
