#pragma once

#include "panel/bus/PanelOrder.h"

#include <QString>

#include <optional>

/// The panel's names on the session bus; docs/dbus.md and the interface's XML file describe them.
namespace vantorel {

/// Also the name of the desktop file, as D-Bus activation requires.
inline const QString panelBusName = QStringLiteral("org.vantorel.ColorPanel");
inline const QString panelObjectPath = QStringLiteral("/org/vantorel/ColorPanel");
inline const QString panelInterface = QStringLiteral("org.vantorel.ColorPanel1");

/// The keys of `Activate`.
inline const QString activationTokenKey = QStringLiteral("activation-token");
inline const QString startupIDKey = QStringLiteral("desktop-startup-id");

[[nodiscard]] QString errorNameFor(PanelError::Kind kind);
/// Returns `std::nullopt` for an error that the panel does not send.
[[nodiscard]] std::optional<PanelError::Kind> errorKindFor(const QString& errorName);

}  // namespace vantorel
