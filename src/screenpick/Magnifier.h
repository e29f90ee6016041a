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

/// A magnifier at work: covers all screens with their picture, follows mouse and keys, and answers
/// with the colour of one pixel.
///
/// Because the user sees the picture and not the screens, what is picked is what was seen, and the
/// magnifier never looks at itself.
class Magnifier final : public QObject {
    Q_OBJECT

public:
    /// Shows itself at once. `mouse` is the mouse's place, a pixel of the desktop.
    Magnifier(DesktopPicture picture, QPoint mouse);
    ~Magnifier() override;

    void mouseMovedTo(QPoint pixel);
    void buttonPressed(Qt::MouseButton button) { _pressed = button; }
    /// Picks or leaves on the release of a button that was pressed here, so that neither half of a
    /// click reaches the program below.
    void buttonReleased(Qt::MouseButton button);
    void step(QPoint by);
    void zoom(int steps);
    void pick();
    void leave();

    /// Paints the lens where it lies on that overlay, in the pixels of its screen.
    void paintLens(QPainter& painter, const MagnifierOverlay& overlay) const;

    /// Whether mouse and keys all come here, wherever the pointer and the focus are.
    [[nodiscard]] bool hasInput() const { return _hasMouse && _hasKeyboard; }

signals:
    // One of the two comes, once, from the event loop; a slot may end the magnifier.

    void picked(const QColor& color);
    /// The user has picked no colour.
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
