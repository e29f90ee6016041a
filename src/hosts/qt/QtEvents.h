#pragma once

#include "host/HostEvent.h"

#include <QKeyEvent>

#include <cstdint>
#include <optional>

/// Qt's events in the core's terms.
namespace vantorel {

[[nodiscard]] std::uint64_t modifierFlags(Qt::KeyboardModifiers modifiers);

/// Returns `std::nullopt` for keys that views do not know, and with Ctrl, Alt or Meta, which belong
/// to shortcuts.
[[nodiscard]] std::optional<HostKeyEvent> hostKeyEvent(const QKeyEvent& event);

}  // namespace vantorel
