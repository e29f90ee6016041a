#pragma once

#include "panel/widgets/ContrastTexts.h"
#include "panel/widgets/ThemeColors.h"

#include <QFont>
#include <QPainter>

namespace vantorel {

/// A contrast that is understood at once, such as "4.54 AA", on a round ground of its own. Shows
/// only the ratio if both do not fit.
class ContrastChip {
public:
    ContrastChip() = default;
    ContrastChip(double ratio, qreal mostWidth);

    /// Returns the size in device-independent pixels; empty if not even the ratio has room.
    [[nodiscard]] QSizeF size() const { return _size; }
    [[nodiscard]] bool showsLevel() const { return !_level.isEmpty(); }
    /// Paints the chip with its upper left corner at a point.
    void paint(QPainter& painter, QPointF topLeft, const ThemeColors& theme,
               Qt::LayoutDirection direction) const;

    /// The height of every chip.
    [[nodiscard]] static qreal height();

private:
    QFont _font;
    QFont _bold;
    QString _ratio;
    QString _level;
    ContrastLevel _kind = ContrastLevel::fails;
    qreal _ratioWidth = 0;
    qreal _levelWidth = 0;
    QSizeF _size;
};

}  // namespace vantorel
