#pragma once

#include "host/HostGeometry.h"

#include <cstdint>

namespace vantorel {

enum class HostEventType : std::uint32_t {
    leftMouseDown = 1,
    leftMouseUp = 2,
    mouseMoved = 5,
    leftMouseDragged = 6,
    mouseEntered = 8,
    mouseExited = 9,
};

/// Bits of `HostEvent::modifierFlags`.
inline constexpr std::uint64_t shiftModifierFlag = 0x20000;
inline constexpr std::uint64_t controlModifierFlag = 0x40000;
inline constexpr std::uint64_t alternateModifierFlag = 0x80000;
inline constexpr std::uint64_t commandModifierFlag = 0x100000;

/// Returns the bit of an event type in an event mask.
[[nodiscard]] constexpr std::uint32_t maskOfEventType(HostEventType type)
{
    return 1U << static_cast<std::uint32_t>(type);
}

/// The keys of a view whose cells are chosen by keyboard.
enum class HostKey {
    left,
    right,
    up,
    down,
    home,
    end,
    pageUp,
    pageDown,
    /// Return, Enter or Space.
    pick,
};

struct HostKeyEvent {
    HostKey key = HostKey::pick;
    std::uint64_t modifierFlags = 0;
};

/// A turn of the mouse wheel.
struct HostScrollEvent {
    /// The pointer's location in the coordinates of the view that receives the event.
    HostPoint location;
    /// Positive when turned away from the user.
    int steps = 0;
    std::uint64_t modifierFlags = 0;
};

/// A mouse event.
struct HostEvent {
    HostEventType type = HostEventType::leftMouseDown;
    /// The location in the coordinates of the view that receives the event.
    HostPoint location;
    std::uint64_t modifierFlags = 0;
};

}  // namespace vantorel
