#include "panel/bus/ActivationToken.h"

#include "hosts/qt/WaylandSession.h"
#include "wayland/AttentionToken.h"

#include <QApplication>
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
    QByteArray activationToken = token.activationToken;
    // A window that is shown anew is activated without a token.
    const bool isBehind = window.isVisible() && !window.isActiveWindow();
    if (activationToken.isEmpty() && isBehind && isWaylandSession())
        activationToken = QByteArray::fromStdString(attentionToken());
    // Qt reads it there when it activates a Wayland window.
    if (!activationToken.isEmpty()) qputenv(waylandVariable, activationToken);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    qunsetenv(waylandVariable);
    // For desktops that leave the focus where it is. The mark goes with the window's activation.
    QApplication::alert(&window);
}

}  // namespace vantorel
