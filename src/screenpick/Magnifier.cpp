#include "screenpick/Magnifier.h"

#include "hosts/qt/QtColors.h"
#include "screenpick/MagnifierOverlay.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace vantorel {
namespace {

constexpr int grabInterval = 50;  // ms

/// How far a pressed mouse must move, in pixels, to drag a box: a hand that clicks trembles.
constexpr int leastBox = 8;
constexpr int boxLineWidth = 1;

QRect squareAround(QPoint middle, int side)
{
    return {middle - QPoint(side / 2, side / 2), QSize(side, side)};
}

}  // namespace

Magnifier::Magnifier(DesktopPicture picture, QPoint mouse, const PickOptions& options)
    : _picture(std::move(picture)), _cursor(_picture.frames(), mouse), _options(options)
{
    _shown.showsHints = options.showsHints;
    _shown.hasName = options.nameOf != nullptr;
    _shown.copiesByLetter = options.picksByLetter != nullptr;
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
    look();
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
    change([&] {
        _cursor.mouseMovedTo(pixel);
        const QPoint moved = _cursor.position() - _pressedAt;
        if (_pressed == Qt::LeftButton &&
            std::max(std::abs(moved.x()), std::abs(moved.y())) >= leastBox)
            _isBox = true;
    });
}

void Magnifier::step(QPoint by)
{
    change([&] { _cursor.step(by); });
}

void Magnifier::zoom(int steps)
{
    if (steps != 0) change([&] { _lens.zoom(steps); });
}

void Magnifier::changeAverage()
{
    const auto* side = std::ranges::find(averagedSides, _options.averagedSide);
    const bool isLast = side == averagedSides.end() || side + 1 == averagedSides.end();
    change([&] { _options.averagedSide = isLast ? averagedSides.front() : *(side + 1); });
}

std::optional<QRect> Magnifier::box() const
{
    if (!_isBox) return std::nullopt;
    const QPoint end = _cursor.position();
    return QRect(QPoint(std::min(_pressedAt.x(), end.x()), std::min(_pressedAt.y(), end.y())),
                 QPoint(std::max(_pressedAt.x(), end.x()), std::max(_pressedAt.y(), end.y())));
}

void Magnifier::updateShown()
{
    for (const auto& overlay : _overlays) {
        const DesktopPicture::Screen& screen = overlay->picture();
        if (const auto dragged = box()) {
            const int reach = 2 * boxLineWidth;
            overlay->updatePixels(
                dragged->translated(-screen.origin).adjusted(-reach, -reach, reach, reach));
        }
        if (!screen.frame().contains(_shown.pixel)) continue;
        overlay->updatePixels(_lens.bounds(screen, _shown, overlay->devicePixelRatioF()));
    }
}

/// Repaints the areas that the lens and the box leave and enter.
void Magnifier::change(const std::function<void()>& change)
{
    if (_finished) return;
    updateShown();
    change();
    look();
    updateShown();
}

/// Takes up the colour below the cursor.
void Magnifier::look()
{
    _shown.pixel = _cursor.position();
    _shown.averaged = box().value_or(squareAround(_shown.pixel, _options.averagedSide));
    const QColor before = std::exchange(
        _shown.color, _picture.averageOf(_shown.averaged).value_or(QColor(Qt::black)));
    if (_shown.color == before) return;
    if (_options.nameOf)
        _shown.name = QString::fromStdU16String(_options.nameOf(hostColorFrom(_shown.color)));
    const QString code = hexCodeOf(_shown.color);
    _overlays.front()->setAccessibleDescription(
        _shown.name.isEmpty() ? code : QStringLiteral("%1, %2").arg(code, _shown.name));
}

void Magnifier::paintLens(QPainter& painter, const MagnifierOverlay& overlay) const
{
    const DesktopPicture::Screen& screen = overlay.picture();
    if (const auto dragged = box()) {
        const QRect frame = dragged->translated(-screen.origin);
        painter.setBrush(Qt::NoBrush);
        for (const auto& [color, distance] : {std::pair(Qt::white, 0), std::pair(Qt::black, 1)}) {
            painter.setPen(QPen(color, boxLineWidth));
            painter.drawRect(frame.adjusted(-1 - distance, -1 - distance, distance, distance));
        }
    }
    if (!screen.frame().contains(_shown.pixel)) return;
    _lens.paint(painter, _picture, screen, _shown, overlay.devicePixelRatioF(), overlay.palette());
}

void Magnifier::buttonPressed(Qt::MouseButton button)
{
    _pressed = button;
    _pressedAt = _cursor.position();
    _isBox = false;
}

void Magnifier::buttonReleased(Qt::MouseButton button, Next next)
{
    if (button != std::exchange(_pressed, Qt::NoButton)) return;
    if (button == Qt::LeftButton) pick(next);
    if (button == Qt::RightButton) leave();
}

void Magnifier::pick(Next next)
{
    const QColor color = _shown.color;
    const bool goesOn = next == Next::goesOn || _options.goesOn;
    if (!goesOn || !_options.pickedOnTheWay) {
        finish(color);
        return;
    }
    if (_finished) return;
    updateShown();
    _isBox = false;
    _shown.picked.push_back(color);
    look();
    updateShown();
    // Later, because the receiver may destroy the magnifier.
    QMetaObject::invokeMethod(
        this, [this, color] { emit pickedOnTheWay(color); }, Qt::QueuedConnection);
}

void Magnifier::pressLetter(char letter)
{
    if (!_finished && _options.picksByLetter && _options.picksByLetter(letter))
        finish(_shown.color);
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
