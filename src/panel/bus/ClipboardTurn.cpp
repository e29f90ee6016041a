#include "panel/bus/ClipboardTurn.h"

#include "panel/bus/ActivationToken.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>

#include <chrono>
#include <utility>

namespace vantorel {
namespace {

constexpr std::chrono::seconds longestWait{2};

}  // namespace

void ClipboardTurn::wait()
{
    const bool needsKeyboard = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (!needsKeyboard || _window.isActiveWindow()) {
        finish(true);
        return;
    }
    _window.installEventFilter(this);
    QTimer::singleShot(longestWait, this, [this] { finish(false); });
    bringToFront(_window, {});
}

bool ClipboardTurn::eventFilter(QObject*, QEvent* event)
{
    // Qt reports the activation before it has finished handling it.
    if (event->type() == QEvent::WindowActivate) {
        QMetaObject::invokeMethod(
            this, [this] { finish(true); }, Qt::QueuedConnection);
    }
    return false;
}

void ClipboardTurn::finish(bool isOurTurn)
{
    if (std::exchange(_isOver, true)) return;
    deleteLater();
    emit over(isOurTurn);
}

}  // namespace vantorel
