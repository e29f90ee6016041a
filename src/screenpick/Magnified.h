#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>

#include <vector>

namespace vantorel {

/// What the magnifier shows. Places are in pixels of the desktop.
struct Magnified {
    /// In the middle of the lens.
    QPoint pixel;
    /// The pixels of which the colour is the average; at least the one in the middle.
    QRect averaged;
    QColor color;
    /// Shown below the code; empty for none.
    QString name;
    /// Whether there is a place for a name, so that the label keeps its size.
    bool hasName = false;
    bool showsHints = false;
    /// Whether the hints explain the letters that copy.
    bool copiesByLetter = false;
    /// The colours that were picked so far. They take the place of the hints.
    std::vector<QColor> picked;

    [[nodiscard]] bool isAverage() const { return averaged.size() != QSize(1, 1); }
};

}  // namespace vantorel
