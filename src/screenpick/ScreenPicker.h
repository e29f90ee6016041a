#pragma once

#include "host/HostColor.h"
#include "result/Message.h"

#include <functional>
#include <memory>

class QWidget;

namespace vantorel {

/// What became of a pick from the screen.
struct ScreenPickResult {
    enum class Outcome { picked, cancelled, notPossible };

    Outcome outcome = Outcome::cancelled;
    /// When picked: opaque, each channel 0..1.
    HostColor color = HostColor::blackColor();
    /// When not possible: what is missing, one sentence for the user.
    Message reason;

    bool operator==(const ScreenPickResult&) const = default;
};

/// Lets the user pick a colour from anywhere on the screen. All calls come from the GUI thread.
class ScreenPicker {
public:
    using Callback = std::function<void(const ScreenPickResult&)>;

    ScreenPicker() = default;
    ScreenPicker(const ScreenPicker&) = delete;
    ScreenPicker& operator=(const ScreenPicker&) = delete;
    /// Gives up a pick that is under way. No callback comes after this.
    virtual ~ScreenPicker() = default;

    /// Begins a pick; one that is under way ends as cancelled first. `done` is called exactly once,
    /// from the event loop: never inside `start` or `cancel`. It may call both, or end the picker.
    /// `parent` is the window that asks, which a desktop's own dialogue is put above; may be null,
    /// and may go away during the pick.
    virtual void start(QWidget* parent, Callback done) = 0;
    /// Ends a pick that is under way as cancelled; without one, does nothing.
    virtual void cancel() = 0;
    /// From `start` until the result is on its way.
    [[nodiscard]] virtual bool isPicking() const = 0;
};

/// Picks through the desktop portal where it offers that, else with a magnifier where an X11
/// display shows the whole screen, else answers what is missing. Which one it is, is found out anew
/// at each start, because portals come and go; making the picker costs nothing.
[[nodiscard]] std::unique_ptr<ScreenPicker> makeScreenPicker();

}  // namespace vantorel
