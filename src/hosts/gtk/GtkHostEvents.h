#pragma once

#include "host/HostEvent.h"
#include "hosts/common/MouseTurn.h"
#include "hosts/gtk/GtkVersions.h"

#include <cstdint>
#include <optional>
#include <string>

/// GTK's events in the core's terms.
namespace vantorel {

[[nodiscard]] std::uint64_t modifierFlagsOf(guint state);

/// Returns `std::nullopt` for keys that views do not know, and with Alt, Super or, unless
/// `withControl`, Ctrl, which belong to shortcuts.
[[nodiscard]] std::optional<HostKeyEvent> hostKeyEventOf(const GdkEventKey& event,
                                                         bool withControl);

/// The turn of a wheel in steps; positive when turned away from the user.
[[nodiscard]] double turnOf(const GdkEventScroll& event);

[[nodiscard]] bool isReturn(guint key);

/// The text that a key types; empty for keys that type none, and with Ctrl, Alt or Super.
[[nodiscard]] std::u16string typedTextOf(const GdkEventKey& event);

/// Runs the program inside of a function. Lives on the stack of that function.
class GtkNestedLoop final : public MouseWait {
public:
    void run() override;
    void end() override;

private:
    GMainLoop* _running = nullptr;
};

}  // namespace vantorel
