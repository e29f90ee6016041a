#pragma once

#include "host/HostEvent.h"
#include "hosts/common/WheelSteps.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <cstdint>
#include <optional>

/// Qt's events in the core's terms.
namespace vantorel {

[[nodiscard]] std::uint64_t modifierFlags(Qt::KeyboardModifiers modifiers);

/// Returns `std::nullopt` for keys that views do not know, and with Alt, Meta or, unless
/// `withControl`, Ctrl, which belong to shortcuts.
[[nodiscard]] std::optional<HostKeyEvent> hostKeyEvent(const QKeyEvent& event, bool withControl);

/// Returns the whole steps of the wheel that an event completes.
[[nodiscard]] int wheelSteps(WheelSteps& wheel, const QWheelEvent& event);

}  // namespace vantorel
