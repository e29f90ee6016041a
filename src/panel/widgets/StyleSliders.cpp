#include "panel/widgets/StyleSliders.h"

#include "panel/widgets/StylePainting.h"

#include <QAbstractScrollArea>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int sliderTrack = 12;
constexpr int scrollBarWidth = 6;

bool isLying(const QStyleOptionSlider& option)
{
    return option.orientation == Qt::Horizontal;
}

/// A rectangle of the option that begins at `start`, along the slider.
QRect partAlong(const QStyleOptionSlider& option, int start, int length)
{
    const QRect& rect = option.rect;
    return isLying(option) ? QRect(rect.left() + start, rect.top(), length, rect.height())
                           : QRect(rect.left(), rect.top() + start, rect.width(), length);
}

int lengthOf(const QStyleOptionSlider& option)
{
    return isLying(option) ? option.rect.width() : option.rect.height();
}

/// Where a thumb of this length begins.
int thumbStart(const QStyleOptionSlider& option, int length)
{
    return QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                           lengthOf(option) - length, option.upsideDown);
}

/// `rect` with this size across the slider, in its middle.
QRectF slimmed(const QStyleOptionSlider& option, const QRectF& rect, qreal across)
{
    QRectF result = rect;
    if (isLying(option)) {
        result.setHeight(across);
    } else {
        result.setWidth(across);
    }
    result.moveCenter(rect.center());
    return result;
}

/// What lies behind a scroll bar. Qt expects the bar to fill its place.
QColor groundBehind(const QStyleOptionSlider& option, const QWidget* widget)
{
    const QWidget* holder = widget != nullptr ? widget->parentWidget() : nullptr;
    const auto* area = qobject_cast<const QAbstractScrollArea*>(
        holder != nullptr ? holder->parentWidget() : nullptr);
    if (area == nullptr) return option.palette.color(QPalette::Window);
    const QWidget* viewport = area->viewport();
    return viewport->palette().color(viewport->backgroundRole());
}

int scrollThumbLength(const QStyleOptionSlider& option)
{
    const qint64 range = qint64{option.maximum} - option.minimum;
    const int length = lengthOf(option);
    if (range <= 0) return length;
    const qint64 shown = std::max(option.pageStep, 1);
    const auto wanted = static_cast<int>(length * shown / (range + shown));
    return std::min(std::max(wanted, leastScrollBarLength), length);
}

}  // namespace

void paintSlider(QPainter& painter, const QStyleOptionSlider& option)
{
    const ThemeColors colors = themeColors(option);
    const QRect thumb = *sliderRect(option, QStyle::SC_SliderHandle);
    const QRectF track = slimmed(option, option.rect, sliderTrack);
    QRectF passed = track;
    if (isLying(option)) {
        option.upsideDown ? passed.setLeft(thumb.center().x())
                          : passed.setRight(thumb.center().x());
    } else {
        option.upsideDown ? passed.setTop(thumb.center().y())
                          : passed.setBottom(thumb.center().y());
    }
    const QColor border = borderColor(option, colors);
    constexpr qreal trackRadius = sliderTrack / 2.0;
    paintRounded(painter, track, trackRadius, colors.down, border);
    paintRounded(painter, passed, trackRadius, isOff(option) ? colors.line : colors.edge, {});

    constexpr qreal radius = sliderThumb / 2.0;
    const bool isTouched =
        option.activeSubControls.testFlag(QStyle::SC_SliderHandle) && !isOff(option);
    const bool hasFocus = showsKeyboardFocus(option);
    paintRounded(painter, thumb, radius, isTouched ? colors.hover : colors.control,
                 hasFocus ? colors.accent : border, hasFocus ? ringWidth : 1);
    constexpr qreal inset = 5;
    paintRounded(painter, QRectF(thumb).adjusted(inset, inset, -inset, -inset), radius - inset,
                 isOff(option) ? colors.textOff : colors.text, {});
}

std::optional<QRect> sliderRect(const QStyleOptionSlider& option, QStyle::SubControl part)
{
    switch (part) {
        case QStyle::SC_SliderGroove:
            return option.rect;
        case QStyle::SC_SliderHandle: {
            const QRect along = partAlong(option, thumbStart(option, sliderThumb), sliderThumb);
            return slimmed(option, along, sliderThumb).toRect();
        }
        default:
            return std::nullopt;
    }
}

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QWidget* widget)
{
    painter.fillRect(option.rect, groundBehind(option, widget));
    if (option.minimum == option.maximum) return;
    const ThemeColors colors = themeColors(option);
    const bool isTouched = option.state.testFlag(QStyle::State_MouseOver) ||
                           option.state.testFlag(QStyle::State_Sunken);
    const QRectF thumb =
        slimmed(option, scrollBarRect(option, QStyle::SC_ScrollBarSlider), scrollBarWidth);
    paintRounded(painter, thumb, scrollBarWidth / 2.0, isTouched ? colors.text2 : colors.edge, {});
}

QRect scrollBarRect(const QStyleOptionSlider& option, QStyle::SubControl part)
{
    const int thumb = scrollThumbLength(option);
    const int start = thumbStart(option, thumb);
    switch (part) {
        case QStyle::SC_ScrollBarGroove:
            return option.rect;
        case QStyle::SC_ScrollBarSlider:
            return partAlong(option, start, thumb);
        case QStyle::SC_ScrollBarSubPage:
            return partAlong(option, 0, start);
        case QStyle::SC_ScrollBarAddPage:
            return partAlong(option, start + thumb, lengthOf(option) - start - thumb);
        default:
            return {};
    }
}

}  // namespace vantorel
