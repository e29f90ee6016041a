#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace vantorel {

/// One form of a copied value.
struct OfferedForm {
    /// A MIME type.
    std::string type;
    std::string bytes;
};

/// A value on the clipboard of a Wayland session. It is there from `settled(true)` until `lost` or
/// the destruction.
///
/// Compositors ignore a selection unless it comes with the serial of an input event, which a
/// program without a focused window does not have. If the compositor offers data control
/// (ext-data-control-v1 or its predecessor), no serial is needed. Otherwise a transparent window of
/// one pixel takes the keyboard for a moment.
///
/// The value is served on a thread of its own: while this program itself pastes, its main thread
/// waits for the bytes.
class WaylandSelection {
public:
    struct Events {
        /// Called once: whether the compositor has confirmed the selection. It is given two
        /// seconds.
        std::function<void(bool isOurs)> settled;
        /// Called once after `settled(true)`, unless the object is destroyed before: another
        /// program has copied something, or the compositor has exited.
        std::function<void()> lost;
    };

    /// `events` are called on the other thread. `activationToken` may be empty.
    WaylandSelection(std::vector<OfferedForm> forms, std::string activationToken, Events events);
    ~WaylandSelection();
    WaylandSelection(const WaylandSelection&) = delete;
    WaylandSelection& operator=(const WaylandSelection&) = delete;

private:
    /// An eventfd that ends the thread.
    int _end;
    std::thread _thread;
};

}  // namespace vantorel
