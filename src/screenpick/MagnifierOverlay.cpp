#include "screenpick/MagnifierOverlay.h"

#include "screenpick/Magnifier.h"

#include <QCloseEvent>
#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace vantorel {
namespace {

constexpr int farStep = 10;
constexpr int wheelNotch = 120;  // Qt's eighths of a degree

/// Several colours can be picked while Shift is held.
Magnifier::Next nextAfter(const QInputEvent& event)
{
    return event.modifiers().testFlag(Qt::ShiftModifier) ? Magnifier::Next::goesOn
                                                         : Magnifier::Next::closes;
}

/// A letter alone. The key that started the magnifier may still be held down.
bool isLetter(const QKeyEvent& event)
{
    return event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z && !event.isAutoRepeat() &&
           (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

}  // namespace

MagnifierOverlay::MagnifierOverlay(Magnifier& magnifier, const DesktopPicture::Screen& screen,
                                   QWidget* parent)
    // Bypasses the window manager, which would keep its own panels uncovered or animate the window.
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                          Qt::WindowStaysOnTopHint),
      _magnifier(magnifier),
      _picture(screen)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    // It may be the program's only window for now.
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::BlankCursor);
    if (screen.screen) {
        setScreen(screen.screen);
        setGeometry(screen.screen->geometry());
    }
}

void MagnifierOverlay::updatePixels(const QRect& pixels)
{
    const double ratio = devicePixelRatioF();
    update(QRectF(pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio,
                  pixels.height() / ratio)
               .toAlignedRect());
}

void MagnifierOverlay::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    // Everything is painted in pixels of the screen, so that no pixel of the picture is blurred.
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect& rect : event->region()) {
        const QRect pixels =
            QRectF(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio, rect.height() * ratio)
                .toAlignedRect();
        painter.drawImage(pixels.topLeft(), _picture.image, pixels);
    }
    _magnifier.paintLens(painter, *this);
}

QPoint MagnifierOverlay::desktopPixelOf(const QSinglePointEvent& event) const
{
    // Of an event's places only the one in the window is not rounded to whole device-independent
    // pixels. While the mouse is grabbed it may lie on another screen; counted from this one it is
    // exact, since an overlay's scale holds beyond its edges too. The sliver guards against a
    // division that came out just below a whole number.
    constexpr double sliver = 0.01;
    const QPointF pixels = event.points().first().scenePosition() * devicePixelRatioF();
    return _picture.origin + QPoint(static_cast<int>(std::floor(pixels.x() + sliver)),
                                    static_cast<int>(std::floor(pixels.y() + sliver)));
}

void MagnifierOverlay::enterEvent(QEnterEvent* event)
{
    // Arrives when the overlay appears below the mouse, with the exact position.
    _magnifier.mouseMovedTo(desktopPixelOf(*event));
}

void MagnifierOverlay::mouseMoveEvent(QMouseEvent* event)
{
    _magnifier.mouseMovedTo(desktopPixelOf(*event));
}

void MagnifierOverlay::mousePressEvent(QMouseEvent* event)
{
    _magnifier.mouseMovedTo(desktopPixelOf(*event));
    _magnifier.buttonPressed(event->button());
}

void MagnifierOverlay::mouseReleaseEvent(QMouseEvent* event)
{
    _magnifier.mouseMovedTo(desktopPixelOf(*event));
    _magnifier.buttonReleased(event->button(), nextAfter(*event));
}

void MagnifierOverlay::wheelEvent(QWheelEvent* event)
{
    _wheelAngle += event->angleDelta().y();
    _magnifier.zoom(_wheelAngle / wheelNotch);
    _wheelAngle %= wheelNotch;
}

void MagnifierOverlay::keyPressEvent(QKeyEvent* event)
{
    const int length = event->modifiers().testFlag(Qt::ShiftModifier) ? farStep : 1;
    switch (event->key()) {
        case Qt::Key_Left:
            _magnifier.step({-length, 0});
            break;
        case Qt::Key_Right:
            _magnifier.step({length, 0});
            break;
        case Qt::Key_Up:
            _magnifier.step({0, -length});
            break;
        case Qt::Key_Down:
            _magnifier.step({0, length});
            break;
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            _magnifier.zoom(1);
            break;
        case Qt::Key_Minus:
            _magnifier.zoom(-1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            // The key that started the magnifier may still be held down.
            if (!event->isAutoRepeat()) _magnifier.pick(nextAfter(*event));
            break;
        case Qt::Key_A:
            _magnifier.changeAverage();
            break;
        case Qt::Key_Escape:
            _magnifier.leave();
            break;
        default:
            if (isLetter(*event)) _magnifier.pressLetter(static_cast<char>(event->key()));
            break;
    }
}

void MagnifierOverlay::closeEvent(QCloseEvent* event)
{
    _magnifier.leave();
    event->accept();
}

bool MagnifierOverlay::focusNextPrevChild(bool)
{
    return false;
}

}  // namespace vantorel
