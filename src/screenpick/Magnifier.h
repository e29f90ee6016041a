#pragma once

#include "screenpick/DesktopPicture.h"
#include "screenpick/Magnified.h"
#include "screenpick/MagnifierLens.h"
#include "screenpick/PickOptions.h"
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
/// reports the colour of one pixel, the average of a square, or that of a box that is dragged.
///
/// The user sees the picture and not the screens, so the picked colour is the one that was visible,
/// and the magnifier never captures itself.
class Magnifier final : public QObject {
    Q_OBJECT

public:
    /// What follows a pick. Without a receiver for several colours the magnifier closes.
    enum class Next { closes, goesOn };

    /// Shows itself immediately. `mouse` is the pixel of the desktop that the mouse is at.
    Magnifier(DesktopPicture picture, QPoint mouse, const PickOptions& options);
    ~Magnifier() override;

    void mouseMovedTo(QPoint pixel);
    void buttonPressed(Qt::MouseButton button);
    /// Picks or cancels when a button that was pressed here is released, so that neither half of a
    /// click reaches the program below.
    void buttonReleased(Qt::MouseButton button, Next next);
    void step(QPoint by);
    void zoom(int steps);
    /// Goes on to the next square that can be averaged.
    void changeAverage();
    void pick(Next next);
    /// A letter from A to Z was pressed that means nothing here.
    void pressLetter(char letter);
    void leave();

    /// Paints the parts of the box and the lens that are on this overlay, in pixels of its screen.
    void paintLens(QPainter& painter, const MagnifierOverlay& overlay) const;

    /// Whether all mouse and key events come here, wherever the pointer and the focus are.
    [[nodiscard]] bool hasInput() const { return _hasMouse && _hasKeyboard; }

signals:
    /// The user has picked a colour and goes on.
    void pickedOnTheWay(const QColor& color);

    // One of these is emitted, once, from the event loop. A slot may destroy the magnifier.

    void picked(const QColor& color);
    /// The user has cancelled.
    void left();

private:
    void show();
    void watchScreens();
    void grabInput();
    void change(const std::function<void()>& change);
    void updateShown();
    void look();
    [[nodiscard]] std::optional<QRect> box() const;
    void finish(std::optional<QColor> color);

    DesktopPicture _picture;
    PixelCursor _cursor;
    MagnifierLens _lens;
    PickOptions _options;
    Magnified _shown;
    /// The first one gets all events; the others are its children in Qt's sense.
    std::vector<std::unique_ptr<MagnifierOverlay>> _overlays;
    Qt::MouseButton _pressed = Qt::NoButton;
    /// Where the left button was pressed: a corner of the box, once it is dragged.
    QPoint _pressedAt;
    bool _isBox = false;
    QTimer _grabAgain;
    bool _hasMouse = false;
    bool _hasKeyboard = false;
    bool _finished = false;
};

}  // namespace vantorel
