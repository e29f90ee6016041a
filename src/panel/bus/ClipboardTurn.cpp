#include "panel/bus/ClipboardTurn.h"

#include "panel/bus/ActivationToken.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace vantorel {
namespace {

constexpr int patience = 2000;  // ms

/// Waits for the window to become the active one. Deletes itself.
class ActivationWait final : public QObject {
public:
    ActivationWait(QWidget& window, QObject& context, std::function<void(bool)> then)
        : QObject(&context), _then(std::move(then))
    {
        window.installEventFilter(this);
        QTimer::singleShot(patience, this, [this] { finish(false); });
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        // Qt still works on the activation while it tells of it.
        if (event->type() == QEvent::WindowActivate)
            QMetaObject::invokeMethod(
                this, [this] { finish(true); }, Qt::QueuedConnection);
        return false;
    }

private:
    void finish(bool active)
    {
        if (const auto then = std::exchange(_then, nullptr)) then(active);
        deleteLater();
    }

    std::function<void(bool)> _then;
};

}  // namespace

void whenClipboardIsOurTurn(QWidget& window, QObject& context, std::function<void(bool)> then)
{
    const bool needsKeyboard = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (!needsKeyboard || window.isActiveWindow()) {
        then(true);
        return;
    }
    new ActivationWait(window, context, std::move(then));
    bringToFront(window, {});
}

}  // namespace vantorel
