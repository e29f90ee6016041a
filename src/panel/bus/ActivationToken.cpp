#include "panel/bus/ActivationToken.h"

#include <QWidget>

namespace vantorel {
namespace {

constexpr const char* waylandVariable = "XDG_ACTIVATION_TOKEN";
constexpr const char* x11Variable = "DESKTOP_STARTUP_ID";

}  // namespace

ActivationToken activationTokenOfThisStart()
{
    return {qgetenv(waylandVariable), qgetenv(x11Variable)};
}

void bringToFront(QWidget& window, const ActivationToken& token)
{
    // Qt reads it there when it activates a Wayland window.
    if (!token.activationToken.isEmpty()) qputenv(waylandVariable, token.activationToken);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    qunsetenv(waylandVariable);
}

}  // namespace vantorel
