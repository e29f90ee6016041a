#pragma once

#include "screenpick/DesktopPicture.h"
#include "screenpick/Magnified.h"

#include <QPalette>

class QPainter;

namespace vantorel {

/// Paints the magnifier: a round lens of enlarged pixels, those framed that are averaged, a label
/// below with the hex code, and below that the notes. Lens and label are always entirely on the
/// screen. Near an edge they move away from the pixel, which is then marked separately. Notes
/// without room below the label are above the lens.
class MagnifierLens {
public:
    /// Changes the magnification, within its limits. Positive steps enlarge the pixels.
    void zoom(int steps);

    /// The area that `paint` touches, in pixels of the screen.
    [[nodiscard]] QRect bounds(const DesktopPicture::Screen& screen, const Magnified& magnified,
                               double ratio) const;

    /// `painter` paints on `screen` in its pixels. The magnified pixel is on that screen, `ratio`
    /// is the pixels of the screen in a device-independent one. The label has the
    /// palette's background and text colours.
    void paint(QPainter& painter, const DesktopPicture& picture,
               const DesktopPicture::Screen& screen, const Magnified& magnified, double ratio,
               const QPalette& palette) const;

private:
    struct Layout;
    struct Cells {
        int size;       ///< of one, in pixels of the screen
        int count;      ///< in a row
        int gridWidth;  ///< of the lines between them; 0 for none
    };

    [[nodiscard]] Layout layOut(const DesktopPicture::Screen& picture, const Magnified& magnified,
                                double ratio) const;
    [[nodiscard]] static QImage enlarged(const DesktopPicture& picture, QPoint middle, Cells size,
                                         const QPalette& palette);

    int _zoom = 2;
};

/// `#rrggbb`.
[[nodiscard]] QString hexCodeOf(const QColor& color);

}  // namespace vantorel
