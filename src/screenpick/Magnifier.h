#pragma once

#include "screenpick/DesktopPicture.h"
#include "screenpick/MagnifierLens.h"
#include "screenpick/PixelCursor.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace vantorel {

class MagnifierOverlay;

/// A running magnifier. It covers all screens with their picture, follows mouse and keys, and
/// reports the colour of one pixel.
///
/// The user sees the picture and not the screens, so the picked colour is the one that was visible,
/// and the magnifier never captures itself.
class Magnifier final : public QObject {
    Q_OBJECT

public:
    /// Shows itself immediately. `mouse` is the pixel of the desktop that the mouse is at.
    Magnifier(DesktopPicture picture, QPoint mouse);
    ~Magnifier() override;

    void mouseMovedTo(QPoint pixel);
    void buttonPressed(Qt::MouseButton button) { _pressed = button; }
    /// Picks or cancels when a button that was pressed here is released, so that neither half of a
    /// click reaches the program below.
    void buttonReleased(Qt::MouseButton button);
    void step(QPoint by);
    void zoom(int steps);
    void pick();
    void leave();

    /// Paints the part of the lens that is on this overlay, in pixels of its screen.
    void paintLens(QPainter& painter, const MagnifierOverlay& overlay) const;

    /// Whether all mouse and key events come here, wherever the pointer and the focus are.
    [[nodiscard]] bool hasInput() const { return _hasMouse && _hasKeyboard; }

signals:
    // One of these is emitted, once, from the event loop. A slot may destroy the magnifier.

    void picked(const QColor& color);
    /// The user has cancelled.
    void left();

private:
    void show();
    void watchScreens();
    void grabInput();
    void change(const std::function<void()>& change);
    void describe();
    void finish(std::optional<QColor> color);

    DesktopPicture _picture;
    PixelCursor _cursor;
    MagnifierLens _lens;
    /// The first one gets all events; the others are its children in Qt's sense.
    std::vector<std::unique_ptr<MagnifierOverlay>> _overlays;
    Qt::MouseButton _pressed = Qt::NoButton;
    QTimer _grabAgain;
    bool _hasMouse = false;
    bool _hasKeyboard = false;
    bool _finished = false;
};

}  // namespace vantorel
