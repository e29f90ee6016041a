#pragma once

#include <QByteArray>

class QWidget;

namespace vantorel {

/// What a desktop gives a program that the user has started, so that its window may come to the
/// front. A start that hands over to a running panel passes it on.
struct ActivationToken {
    /// `XDG_ACTIVATION_TOKEN`, for Wayland.
    QByteArray activationToken;
    /// `DESKTOP_STARTUP_ID`, for X11.
    QByteArray startupID;

    bool operator==(const ActivationToken&) const = default;
};

/// From the environment. To be called before there is an application, which takes it away.
[[nodiscard]] ActivationToken activationTokenOfThisStart();

/// Shows the window, also out of its icon, above the others and with the keyboard, as far as the
/// desktop lets it. A token is good for once; an empty one stands for none.
void bringToFront(QWidget& window, const ActivationToken& token);

}  // namespace vantorel
