#pragma once

#include "screenpick/DesktopPicture.h"

#include <QPalette>

class QPainter;

namespace vantorel {

/// How the magnifier looks: a round lens of enlarged pixels, the one in its middle framed, and the
/// hex code of that one on a label below. Lens and label are always wholly on the screen; near an
/// edge they stand back from the pixel, which then gets a mark of its own.
class MagnifierLens {
public:
    /// Changes the magnification; positive to see larger pixels. Stays within its limits.
    void zoom(int steps);

    /// All that `paint` touches, in pixels of that screen.
    [[nodiscard]] QRect bounds(const DesktopPicture::Screen& screen, QPoint pixel,
                               double ratio) const;

    /// `painter` paints on `screen` in its pixels. `pixel` is a pixel of the desktop on that
    /// screen, `ratio` the pixels of the screen in a device-independent one. The palette gives the
    /// ground and the text of the label.
    void paint(QPainter& painter, const DesktopPicture& picture,
               const DesktopPicture::Screen& screen, QPoint pixel, double ratio,
               const QPalette& palette) const;

private:
    struct Layout;
    struct Cells {
        int size;       ///< of one, in pixels of the screen
        int count;      ///< in a row
        int gridWidth;  ///< of the lines between them; 0 for none
    };

    [[nodiscard]] Layout layOut(QSize screen, QPoint pixel, double ratio) const;
    [[nodiscard]] static QImage enlarged(const DesktopPicture& picture, QPoint middle, Cells size,
                                         const QPalette& palette);

    int _zoom = 2;
};

/// `#rrggbb`.
[[nodiscard]] QString hexCodeOf(const QColor& color);

}  // namespace vantorel
