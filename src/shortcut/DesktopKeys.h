#pragma once

#include <QKeySequence>
#include <QString>

#include <cstdint>
#include <optional>

/// Keys as the X server and the desktop portal name them.
namespace vantorel {

struct DesktopKey {
    /// The key symbol of the X server, and its name.
    std::uint32_t symbol = 0;
    QString name;
    /// In the bits of the X server: Shift 1, Control 4, Alt 8, Meta 64.
    std::uint16_t modifiers = 0;
};

/// Returns the first key of a sequence, or `std::nullopt` if it is not one of a Latin keyboard.
[[nodiscard]] std::optional<DesktopKey> desktopKeyFrom(const QKeySequence& keys);

/// Returns the trigger for the desktop portal, such as "CTRL+ALT+c"; empty if there is none.
[[nodiscard]] QString portalTriggerFrom(const QKeySequence& keys);

/// Whether a key can be taken from all programs: a function key, or one with Ctrl, Alt or Meta.
/// Others are needed for typing.
[[nodiscard]] bool canBeGlobal(const QKeySequence& keys);

}  // namespace vantorel
