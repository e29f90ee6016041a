#include "panel/widgets/StyleTabs.h"

#include "panel/widgets/StylePainting.h"

#include <QFontMetrics>
#include <QIcon>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int underline = 2;

QFont boldOf(QFont font)
{
    font.setBold(true);
    return font;
}

/// The font of a tab's row. The option has only its measures, and those of the program's font where
/// no widget is described.
QFont fontOfTab(const QStyleOptionTab& option)
{
    const auto* widget = qobject_cast<const QWidget*>(option.styleObject);
    return widget != nullptr ? widget->font() : QFont();
}

}  // namespace

void paintTab(QPainter& painter, const QStyleOptionTab& option)
{
    const ThemeColors colors = themeColors(option);
    const QRectF rect(option.rect);
    if (option.state.testFlag(QStyle::State_Selected)) {
        const QRectF line(rect.left() + tabPadding, rect.bottom() + 1 - underline - 1,
                          rect.width() - 2 * tabPadding, underline);
        painter.fillRect(onDevicePixels(painter, line), colors.text);
    }
    if (showsKeyboardFocus(option)) {
        constexpr qreal inset = 2;
        paintFocusRing(painter, rect.adjusted(inset, inset, -inset, -inset - underline), rowRadius,
                       colors);
    }
}

void paintTabLabel(QPainter& painter, const QStyleOptionTab& option, const QStyle& style)
{
    const ThemeColors colors = themeColors(option);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isTouched = option.state.testFlag(QStyle::State_MouseOver);
    QRect room = option.rect.adjusted(tabPadding, 0, -tabPadding, -underline);
    painter.save();
    if (!option.icon.isNull()) {
        const QRect icon = QStyle::alignedRect(
            option.direction,
            (option.text.isEmpty() ? Qt::AlignHCenter : Qt::AlignLeading) | Qt::AlignVCenter,
            option.iconSize, room);
        option.icon.paint(&painter, icon);
        constexpr int gap = 4;
        const int used = icon.width() + gap;
        const bool isMirrored = option.direction == Qt::RightToLeft;
        room.adjust(isMirrored ? 0 : used, 0, isMirrored ? -used : 0, 0);
    }
    const QFont font = fontOfTab(option);
    painter.setFont(isSelected ? boldOf(font) : font);
    painter.setPen(isOff(option) ? colors.textOff
                                 : (isSelected || isTouched ? colors.text : colors.text2));
    const bool showsKeys = style.styleHint(QStyle::SH_UnderlineShortcut, &option) != 0;
    painter.drawText(room,
                     static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeading)) |
                         Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip |
                         (showsKeys ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     option.text);
    painter.restore();
}

QSize tabSize(const QStyleOptionTab& option, const QSize& contents)
{
    if (option.text.isEmpty()) return contents;
    const QFont font = fontOfTab(option);
    const int regular = QFontMetrics(font).size(Qt::TextShowMnemonic, option.text).width();
    const int bold = QFontMetrics(boldOf(font)).size(Qt::TextShowMnemonic, option.text).width();
    constexpr int leastHeight = 32;
    return {contents.width() + std::max(0, bold - regular),
            std::max(leastHeight, contents.height())};
}

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
