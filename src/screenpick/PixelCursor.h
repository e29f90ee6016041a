#pragma once

#include <QPoint>
#include <QRect>

#include <vector>

namespace vantorel {

/// The magnified pixel, moved by mouse and keys. All coordinates are pixels of the desktop.
///
/// The mouse pointer cannot be placed on every pixel of a scaled screen, so keys do not move the
/// pointer. They offset the cursor from it. Mouse moves keep the offset until the pointer reaches
/// an edge of the desktop.
class PixelCursor {
public:
    /// At least one screen. The cursor is where the mouse is, or at the nearest pixel of a screen.
    PixelCursor(std::vector<QRect> screens, QPoint mouse);

    void mouseMovedTo(QPoint mouse);
    /// Moves by whole pixels, as far as there are screens in that direction.
    void step(QPoint by);
    [[nodiscard]] QPoint position() const { return _position; }

private:
    [[nodiscard]] bool isOnScreen(QPoint point) const;
    [[nodiscard]] QPoint nearestOnScreen(QPoint point) const;
    [[nodiscard]] bool isStuck(QPoint mouse, QPoint direction) const;

    std::vector<QRect> _screens;
    QPoint _mouse;
    QPoint _position;
};

}  // namespace vantorel
