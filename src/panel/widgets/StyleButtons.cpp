#include "panel/widgets/StyleButtons.h"

#include "panel/widgets/StylePainting.h"

namespace vantorel {
namespace {

bool isChosen(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_On);
}

/// Fills the ground of a check box or radio button. A ring of the focus lies around the fill.
void paintIndicatorGround(QPainter& painter, const QStyleOption& option, qreal radius, bool filled)
{
    const ThemeColors colors = themeColors(option);
    const QRectF rect(option.rect);
    if (!showsKeyboardFocus(option)) {
        const QColor fill = isOff(option) ? colors.textOff : colors.text;
        paintRounded(painter, rect, radius, filled ? fill : pressableGround(option, colors),
                     filled ? fill : borderColor(option, colors));
        return;
    }
    paintRounded(painter, rect, radius, filled ? colors.window : colors.control, {});
    paintFocusRing(painter, rect, radius, colors);
    constexpr qreal gap = ringWidth + 1;
    if (filled)
        paintRounded(painter, rect.adjusted(gap, gap, -gap, -gap), radius - gap, colors.text, {});
}

}  // namespace

void paintPushButton(QPainter& painter, const QStyleOptionButton& option)
{
    const ThemeColors colors = themeColors(option);
    const QRectF rect(option.rect);
    const bool isFlat = option.features.testFlag(QStyleOptionButton::Flat);
    const bool isTouched = option.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
    if (isChosen(option)) {
        paintRounded(painter, rect, controlRadius, isOff(option) ? colors.textOff : colors.text,
                     {});
    } else if (!isFlat) {
        paintRounded(painter, rect, controlRadius, pressableGround(option, colors),
                     borderColor(option, colors));
    } else if (isTouched && !isOff(option)) {
        paintRounded(painter, rect, controlRadius, pressableGround(option, colors), {});
    }
    if (showsKeyboardFocus(option)) paintFocusRing(painter, rect, controlRadius, colors);
}

void paintToolButton(QPainter& painter, const QStyleOption& option)
{
    const ThemeColors colors = themeColors(option);
    const QRectF rect(option.rect);
    const bool isTouched = option.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
    if (isChosen(option)) {
        paintRounded(painter, rect, rowRadius, isOff(option) ? colors.textOff : colors.text, {});
    } else if (!option.state.testFlag(QStyle::State_AutoRaise)) {
        paintRounded(painter, rect, controlRadius, pressableGround(option, colors),
                     borderColor(option, colors));
    } else if (isTouched && !isOff(option)) {
        paintRounded(painter, rect, rowRadius, pressableGround(option, colors), {});
    }
    if (!showsKeyboardFocus(option)) return;
    const bool isFrame = !option.state.testFlag(QStyle::State_AutoRaise);
    paintFocusRing(painter, rect, isFrame ? controlRadius : rowRadius, colors);
    // On the fill of a chosen button the ring would be hard to see.
    if (isChosen(option)) {
        const QRectF gap = rect.adjusted(ringWidth, ringWidth, -ringWidth, -ringWidth);
        paintRounded(painter, gap, rowRadius - ringWidth, {}, colors.window);
    }
}

void paintCheckBox(QPainter& painter, const QStyleOption& option)
{
    const bool isPartial = option.state.testFlag(QStyle::State_NoChange);
    paintIndicatorGround(painter, option, rowRadius, isChosen(option) || isPartial);
    const ThemeColors colors = themeColors(option);
    const QRectF rect(option.rect);
    if (isPartial) {
        const QRectF dash(rect.center() - QPointF(3.5, 1), QSizeF(7, 2));
        paintRounded(painter, dash, 1, colors.window, {});
    } else if (isChosen(option)) {
        paintTick(painter, rect, colors.window);
    }
}

void paintRadioButton(QPainter& painter, const QStyleOption& option)
{
    const QRectF rect(option.rect);
    paintIndicatorGround(painter, option, rect.height() / 2, isChosen(option));
    if (!isChosen(option)) return;
    const QRectF dot(rect.center() - QPointF(3, 3), QSizeF(6, 6));
    paintRounded(painter, dot, 3, themeColors(option).window, {});
}

template <class Option>
Option withChosenText(Option option)
{
    if (isChosen(option)) {
        const QColor ground = themeColors(option).window;
        for (const auto role : {QPalette::ButtonText, QPalette::WindowText})
            option.palette.setColor(role, ground);
    }
    return option;
}

template QStyleOptionButton withChosenText(QStyleOptionButton);
template QStyleOptionToolButton withChosenText(QStyleOptionToolButton);

QIcon chosenIcon(const QStyleOptionToolButton& option, qreal devicePixelRatio)
{
    QPixmap picture = option.icon.pixmap(option.iconSize, devicePixelRatio);
    if (picture.isNull()) return option.icon;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(), picture.deviceIndependentSize()),
                     themeColors(option).window);
    painter.end();
    return {picture};
}

}  // namespace vantorel
