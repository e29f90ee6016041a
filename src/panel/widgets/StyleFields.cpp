#include "panel/widgets/StyleFields.h"

#include "panel/widgets/StylePainting.h"

#include <QAbstractScrollArea>
#include <QFrame>
#include <QIcon>
#include <QStyle>

namespace vantorel {
namespace {

constexpr int comboPadding = 4;
constexpr int labelPadding = 4;
constexpr int comboArrowRoom = 21;

bool isRightToLeft(const QStyleOption& option)
{
    return option.direction == Qt::RightToLeft;
}

void paintSpinArrow(QPainter& painter, const QStyleOptionSpinBox& option, const QRect& room,
                    ChevronDirection direction, QStyle::SubControl part,
                    QAbstractSpinBox::StepEnabledFlag step)
{
    if (!room.isValid()) return;
    const ThemeColors colors = themeColors(option);
    const bool isUsable = option.stepEnabled.testFlag(step) && !isOff(option);
    const bool isTouched = option.activeSubControls.testFlag(part);
    const QColor color = !isUsable ? colors.textOff : (isTouched ? colors.text : colors.text2);
    paintChevron(painter, room, direction, color);
}

}  // namespace

void paintField(QPainter& painter, const QStyleOption& option)
{
    const ThemeColors colors = themeColors(option);
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus) && !isOff(option);
    paintRounded(painter, option.rect, controlRadius, isOff(option) ? colors.window : colors.base,
                 hasFocus ? colors.accent : borderColor(option, colors), hasFocus ? ringWidth : 1);
}

void paintComboBox(QPainter& painter, const QStyleOptionComboBox& option)
{
    if (option.editable) {
        paintField(painter, option);
    } else {
        const ThemeColors colors = themeColors(option);
        const QRectF rect(option.rect);
        const bool isTouched = option.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
        if (option.frame) {
            paintRounded(painter, rect, controlRadius, pressableGround(option, colors),
                         borderColor(option, colors));
        } else if (isTouched) {
            paintRounded(painter, rect, controlRadius, pressableGround(option, colors), {});
        }
        if (showsKeyboardFocus(option)) paintFocusRing(painter, rect, controlRadius, colors);
    }
    const ThemeColors colors = themeColors(option);
    paintChevron(painter, comboBoxArrowRect(option), ChevronDirection::down,
                 isOff(option) ? colors.textOff : colors.text);
}

void paintComboBoxLabel(QPainter& painter, const QStyleOptionComboBox& option, const QStyle& style,
                        const QWidget* widget)
{
    QRect room =
        style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, widget);
    const bool enabled = !isOff(option);
    // Buttons of pages, which are narrow, paint their labels themselves and use all of the room.
    room = QStyle::visualRect(option.direction, option.rect, room);
    room.adjust(labelPadding, 0, 0, 0);
    room = QStyle::visualRect(option.direction, option.rect, room);
    if (!option.currentIcon.isNull()) {
        const QSize size = option.iconSize;
        const QRect icon =
            QStyle::alignedRect(option.direction, Qt::AlignLeading | Qt::AlignVCenter, size, room);
        option.currentIcon.paint(&painter, icon, Qt::AlignCenter,
                                 enabled ? QIcon::Normal : QIcon::Disabled);
        constexpr int gap = 6;
        const int used = size.width() + gap;
        room.adjust(isRightToLeft(option) ? 0 : used, 0, isRightToLeft(option) ? -used : 0, 0);
    }
    if (option.currentText.isEmpty() || option.editable) return;
    const QString text =
        option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, room.width());
    style.drawItemText(&painter, room,
                       static_cast<int>(QStyle::visualAlignment(
                           option.direction, Qt::AlignLeading | Qt::AlignVCenter)),
                       option.palette, enabled, text, QPalette::ButtonText);
}

QRect comboBoxTextRect(const QStyleOptionComboBox& option)
{
    const QRect text = option.rect.adjusted(comboPadding, 1, -comboArrowRoom, -1);
    return QStyle::visualRect(option.direction, option.rect, text);
}

QRect comboBoxArrowRect(const QStyleOptionComboBox& option)
{
    constexpr int width = 16;
    constexpr int padding = 2;
    const QRect& rect = option.rect;
    const QRect arrow(rect.right() + 1 - padding - width, rect.top(), width, rect.height());
    return QStyle::visualRect(option.direction, rect, arrow);
}

int comboBoxChrome()
{
    // Qt measures the ink of a text, which can be narrower than its place.
    constexpr int slack = 4;
    return comboPadding + labelPadding + comboArrowRoom + slack;
}

void paintSpinBox(QPainter& painter, const QStyleOptionSpinBox& option, const QRect& up,
                  const QRect& down)
{
    if (option.frame) paintField(painter, option);
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons) return;
    paintSpinArrow(painter, option, up, ChevronDirection::up, QStyle::SC_SpinBoxUp,
                   QAbstractSpinBox::StepUpEnabled);
    paintSpinArrow(painter, option, down, ChevronDirection::down, QStyle::SC_SpinBoxDown,
                   QAbstractSpinBox::StepDownEnabled);
}

void paintFrameWidget(QPainter& painter, const QStyleOptionFrame& option, const QWidget* widget)
{
    const ThemeColors colors = themeColors(option);
    const QRectF rect(option.rect);
    const qreal line = lineOnDevicePixels(painter, 1);
    switch (option.frameShape) {
        case QFrame::NoFrame:
            return;
        case QFrame::HLine: {
            const QRectF across(rect.left(), rect.center().y() - line / 2, rect.width(), line);
            painter.fillRect(onDevicePixels(painter, across), colors.line);
            return;
        }
        case QFrame::VLine: {
            const QRectF upright(rect.center().x() - line / 2, rect.top(), line, rect.height());
            painter.fillRect(onDevicePixels(painter, upright), colors.line);
            return;
        }
        default:
            break;
    }
    const bool isWindow = widget != nullptr && widget->isWindow();
    const bool isArea = qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    paintRounded(painter, rect, isWindow ? 0 : listRadius, isArea ? colors.base : QColor(),
                 borderColor(option, colors));
}

}  // namespace vantorel
