#include "screenpick/MagnifierPickMethod.h"

#include "hosts/qt/QtColors.h"

#include <QApplication>
#include <QCursor>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

// Programs repaint a covered area only after the window over it has closed. A picture taken too
// early still shows the menu that started the pick, or the last magnifier.
constexpr qint64 menuSettleTime = 60;        // ms
constexpr qint64 magnifierSettleTime = 300;  // ms

/// Empty if the screen can be captured.
Phrase obstacle()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        return phrase("there is no X11 display");
    }
    const QList<QScreen*> screens = QGuiApplication::screens();
    const bool rootless = std::any_of(screens.begin(), screens.end(), [](const QScreen* screen) {
        return screen->name().startsWith(QLatin1String("XWAYLAND"));
    });
    if (rootless || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return phrase("the X11 display does not show the windows of Wayland");
    }
    return {};
}

/// In pixels of the desktop, as precise as Qt knows before the mouse moves.
QPoint mousePixel()
{
    const QPoint mouse = QCursor::pos();
    const QScreen* screen = QGuiApplication::screenAt(mouse);
    if (!screen) return mouse;
    const QPoint origin = screen->geometry().topLeft();
    return origin + (QPointF(mouse - origin) * screen->devicePixelRatio()).toPoint();
}

void closePopups()
{
    // They would keep the mouse grabbed. One that does not close must not block the program.
    constexpr int deepest = 16;
    for (int i = 0; i < deepest; ++i) {
        QWidget* popup = QApplication::activePopupWidget();
        if (!popup) return;
        popup->close();
    }
}

}  // namespace

MagnifierPickMethod::MagnifierPickMethod()
{
    _settling.setSingleShot(true);
    connect(&_settling, &QTimer::timeout, this, &MagnifierPickMethod::begin);
}

void MagnifierPickMethod::start(QWidget*, const PickOptions& options)
{
    _options = options;
    if (!obstacle().isEmpty()) {
        _settling.start(0);
        return;
    }
    closePopups();
    const qint64 toWait = _sinceLast.isValid() ? magnifierSettleTime - _sinceLast.elapsed() : 0;
    _settling.start(static_cast<int>(std::max(menuSettleTime, toWait)));
}

void MagnifierPickMethod::cancel()
{
    end();
}

void MagnifierPickMethod::begin()
{
    if (const Phrase reason = obstacle(); !reason.isEmpty()) {
        finish(Failure{reason});
        return;
    }
    auto picture = DesktopPicture::take();
    if (!picture) {
        finish(Failure{phrase("the X11 display gives no picture of its screens")});
        return;
    }
    _activeBefore = QApplication::activeWindow();
    _magnifier = std::make_unique<Magnifier>(std::move(*picture), mousePixel(), _options);
    connect(_magnifier.get(), &Magnifier::picked, this,
            [this](const QColor& color) { finish(hostColorFrom(color)); });
    connect(_magnifier.get(), &Magnifier::pickedOnTheWay, this,
            [this](const QColor& color) { emit pickedOnTheWay(hostColorFrom(color)); });
    connect(_magnifier.get(), &Magnifier::left, this, [this] { finish(CancelledByUser{}); });
}

void MagnifierPickMethod::end()
{
    _settling.stop();
    if (!_magnifier) return;
    _magnifier.reset();
    _sinceLast.start();
    if (_activeBefore) _activeBefore->activateWindow();
    _activeBefore.clear();
}

void MagnifierPickMethod::finish(const Outcome& outcome)
{
    end();
    emit finished(outcome);
}

}  // namespace vantorel
