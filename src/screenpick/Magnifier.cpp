#include "screenpick/Magnifier.h"

#include "screenpick/MagnifierOverlay.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

constexpr int grabInterval = 50;  // ms

}  // namespace

Magnifier::Magnifier(DesktopPicture picture, QPoint mouse)
    : _picture(std::move(picture)), _cursor(_picture.frames(), mouse)
{
    _grabAgain.setInterval(grabInterval);
    connect(&_grabAgain, &QTimer::timeout, this, &Magnifier::grabInput);
    show();
    watchScreens();
    grabInput();
    if (!hasInput()) _grabAgain.start();
}

Magnifier::~Magnifier()
{
    _finished = true;
    // Children before their parent, which would delete them.
    while (!_overlays.empty())
        _overlays.pop_back();
}

void Magnifier::show()
{
    for (const DesktopPicture::Screen& screen : _picture.screens()) {
        QWidget* first = _overlays.empty() ? nullptr : _overlays.front().get();
        auto overlay = std::make_unique<MagnifierOverlay>(*this, screen, first);
        overlay->setWindowTitle(QCoreApplication::translate("Vantorel", "Colour magnifier"));
        overlay->setAccessibleName(overlay->windowTitle());
        // A modal dialogue of the program would block all input to a plain window.
        if (!first) overlay->setWindowModality(Qt::ApplicationModal);
        _overlays.push_back(std::move(overlay));
    }
    describe();
    for (const auto& overlay : _overlays) {
        overlay->show();
        overlay->raise();
    }
    _overlays.front()->activateWindow();
    _overlays.front()->setFocus();
}

void Magnifier::watchScreens()
{
    // The picture no longer matches the desktop.
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &Magnifier::leave);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &Magnifier::leave);
    for (const DesktopPicture::Screen& screen : _picture.screens()) {
        if (!screen.screen) continue;
        connect(screen.screen, &QScreen::geometryChanged, this, &Magnifier::leave);
    }
}

/// Another program may have grabbed the mouse or keyboard, for example for a menu, so this is
/// repeated until it succeeds.
void Magnifier::grabInput()
{
    QWindow* window = _overlays.front()->windowHandle();
    _hasMouse = _hasMouse || window->setMouseGrabEnabled(true);
    _hasKeyboard = _hasKeyboard || window->setKeyboardGrabEnabled(true);
    if (hasInput()) _grabAgain.stop();
}

void Magnifier::mouseMovedTo(QPoint pixel)
{
    change([&] { _cursor.mouseMovedTo(pixel); });
}

void Magnifier::step(QPoint by)
{
    change([&] { _cursor.step(by); });
}

void Magnifier::zoom(int steps)
{
    if (steps != 0) change([&] { _lens.zoom(steps); });
}

/// Repaints the areas that the lens leaves and enters.
void Magnifier::change(const std::function<void()>& change)
{
    const auto updateLens = [this] {
        for (const auto& overlay : _overlays) {
            const DesktopPicture::Screen& screen = overlay->picture();
            if (!screen.frame().contains(_cursor.position())) continue;
            overlay->updatePixels(
                _lens.bounds(screen, _cursor.position(), overlay->devicePixelRatioF()));
        }
    };
    if (_finished) return;
    const QPoint before = _cursor.position();
    updateLens();
    change();
    updateLens();
    if (_cursor.position() != before) describe();
}

void Magnifier::describe()
{
    const auto color = _picture.colorAt(_cursor.position());
    if (color) _overlays.front()->setAccessibleDescription(hexCodeOf(*color));
}

void Magnifier::paintLens(QPainter& painter, const MagnifierOverlay& overlay) const
{
    const DesktopPicture::Screen& screen = overlay.picture();
    if (!screen.frame().contains(_cursor.position())) return;
    _lens.paint(painter, _picture, screen, _cursor.position(), overlay.devicePixelRatioF(),
                overlay.palette());
}

void Magnifier::buttonReleased(Qt::MouseButton button)
{
    if (button != std::exchange(_pressed, Qt::NoButton)) return;
    if (button == Qt::LeftButton) pick();
    if (button == Qt::RightButton) leave();
}

void Magnifier::pick()
{
    finish(_picture.colorAt(_cursor.position()));
}

void Magnifier::leave()
{
    finish(std::nullopt);
}

void Magnifier::finish(std::optional<QColor> color)
{
    if (std::exchange(_finished, true)) return;
    _grabAgain.stop();
    // Hiding releases the mouse and keyboard. The overlays cannot be deleted here, because they are
    // still handling an event.
    for (const auto& overlay : _overlays)
        overlay->hide();
    QMetaObject::invokeMethod(
        this,
        [this, color] {
            if (color) {
                emit picked(*color);
            } else {
                emit left();
            }
        },
        Qt::QueuedConnection);
}

}  // namespace vantorel
