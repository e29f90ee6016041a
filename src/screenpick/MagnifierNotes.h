#pragma once

#include "screenpick/Magnified.h"

#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QSizeF>

namespace vantorel {

/// Returns the size of the line below the lens, in pixels of the screen: the colours that were
/// picked so far, or what the keys do. Empty if there is neither.
[[nodiscard]] QSizeF sizeOfNotes(const Magnified& magnified, double ratio);

/// Paints that line into a place of that size.
void paintNotes(QPainter& painter, const QRectF& place, const Magnified& magnified, double ratio,
                const QPalette& palette);

}  // namespace vantorel
