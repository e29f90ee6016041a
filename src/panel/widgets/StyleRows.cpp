#include "panel/widgets/StyleRows.h"

#include "panel/widgets/StylePainting.h"

#include <QWidget>

namespace vantorel {

bool isInPopUp(const QStyleOptionViewItem& option)
{
    return option.widget != nullptr && option.widget->window()->windowType() == Qt::Popup;
}

void paintRow(QPainter& painter, const QStyleOptionViewItem& option)
{
    const ThemeColors colors = themeColors(option);
    if (option.backgroundBrush.style() != Qt::NoBrush)
        painter.fillRect(option.rect, option.backgroundBrush);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QRectF rect(option.rect);
    if (isSelected) {
        if (isInPopUp(option)) {
            paintRounded(painter, rect, rowRadius, colors.accent, {});
            return;
        }
        paintRounded(painter, rect, rowRadius, colors.down, {});
        constexpr qreal bar = 3;
        const bool isMirrored = option.direction == Qt::RightToLeft;
        const qreal inset = rect.height() / 5;
        const QRectF mark(isMirrored ? rect.right() - bar : rect.left(), rect.top() + inset, bar,
                          rect.height() - 2 * inset);
        paintRounded(painter, mark, bar / 2, colors.text, {});
    } else if (option.state.testFlag(QStyle::State_MouseOver) && !isOff(option)) {
        paintRounded(painter, rect, rowRadius, colors.hover, {});
    }
}

}  // namespace vantorel
