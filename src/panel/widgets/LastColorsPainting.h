#pragma once

#include "panel/widgets/LastColorsPlaces.h"
#include "panel/widgets/ThemeColors.h"

#include <QPainter>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <cstddef>

/// The parts of a row of last colours, apart from the swatches themselves.
namespace vantorel {

/// Paints the sentence of a row without colours into a dashed frame.
void paintLastColorsHint(QPainter& painter, const QWidget& row, const QString& sentence);

/// Paints the ring around the swatch that the keys have reached.
void paintLastColorsFocus(QPainter& painter, const QRectF& swatch, const ThemeColors& theme);

/// Paints the rule between the pinned colours and the others, if there is one.
void paintLastColorsRule(QPainter& painter, const LastColorsPlaces& places,
                         const ThemeColors& theme);

/// Paints a line where a dropped colour would be among the pinned ones.
void paintLastColorsDropMark(QPainter& painter, const QWidget& row, const LastColorsPlaces& places,
                             std::size_t place, const ThemeColors& theme);

}  // namespace vantorel
