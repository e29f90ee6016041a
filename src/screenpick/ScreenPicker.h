#pragma once

#include "host/HostColor.h"
#include "result/Message.h"
#include "screenpick/PickOptions.h"

#include <functional>
#include <memory>

class QWidget;

namespace vantorel {

/// The result of a pick from the screen.
struct ScreenPickResult {
    enum class Outcome { picked, cancelled, notPossible };

    Outcome outcome = Outcome::cancelled;
    /// If picked: opaque, each channel 0..1.
    HostColor color = HostColor::blackColor();
    /// If picked: whether an average was asked for, and the desktop picked a single pixel.
    bool lacksAverage = false;
    /// If picked: whether several were to be picked, and the desktop picks only one.
    bool endsAfterOne = false;
    /// If not possible: what is missing.
    Message reason = {};

    bool operator==(const ScreenPickResult&) const = default;
};

/// Lets the user pick a colour from anywhere on the screen. All calls come from the GUI thread.
class ScreenPicker {
public:
    using Callback = std::function<void(const ScreenPickResult&)>;

    ScreenPicker() = default;
    ScreenPicker(const ScreenPicker&) = delete;
    ScreenPicker& operator=(const ScreenPicker&) = delete;
    /// Abandons a pick in progress, without calling back.
    virtual ~ScreenPicker() = default;

    /// Begins a pick. One in progress is cancelled first. `done` is called exactly once, from the
    /// event loop, never inside `start` or `cancel`. It may call both, or destroy the picker.
    /// `parent` is the requesting window, over which a desktop shows its own dialogue; it may be
    /// null, and may be destroyed during the pick.
    virtual void start(QWidget* parent, const PickOptions& options, Callback done) = 0;
    /// Cancels the pick in progress, if any.
    virtual void cancel() = 0;
    /// True from `start` until the result is determined.
    [[nodiscard]] virtual bool isPicking() const = 0;
};

/// Returns a picker that uses the desktop portal if it can pick, else a magnifier if an X11 display
/// shows the whole screen, else reports what is missing. For what only the magnifier can do, such
/// as an average or the names of colours, it comes first. It checks at each start, because portals
/// come and go. Creating the picker is cheap.
[[nodiscard]] std::unique_ptr<ScreenPicker> makeScreenPicker();

}  // namespace vantorel
