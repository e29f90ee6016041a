#pragma once

#include <QByteArray>

class QWidget;

namespace vantorel {

/// Allows a program that the user has started to bring its window to the front. A start that passes
/// its order to a running panel passes this on, too.
struct ActivationToken {
    /// `XDG_ACTIVATION_TOKEN`, for Wayland.
    QByteArray activationToken;
    /// `DESKTOP_STARTUP_ID`, for X11.
    QByteArray startupID;

    bool operator==(const ActivationToken&) const = default;
};

/// Reads the token from the environment. Call this before creating the QApplication, which removes
/// it.
[[nodiscard]] ActivationToken activationTokenOfThisStart();

/// Shows the window above all others with the keyboard focus, even if it was minimised, as far as
/// the desktop allows; otherwise the window asks for attention. A token is valid once; an empty one
/// means none.
void bringToFront(QWidget& window, const ActivationToken& token);

}  // namespace vantorel
