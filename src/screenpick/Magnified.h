#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>

#include <vector>

namespace vantorel {

/// What the magnifier shows. Places are in pixels of the desktop.
struct Magnified {
    /// In the middle of the lens.
    QPoint pixel;
    /// The pixels of which the colour is the average; at least the one in the middle.
    QRect averaged;
    QColor color;
    bool showsHints = false;
    /// The colours that were picked so far. They take the place of the hints.
    std::vector<QColor> picked;

    [[nodiscard]] bool isAverage() const { return averaged.size() != QSize(1, 1); }
};

}  // namespace vantorel
