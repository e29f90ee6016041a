#pragma once

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <optional>

/// Sliders and scroll bars of the panel's style.
namespace vantorel {

/// The thumb of a slider, across and along.
inline constexpr int sliderThumb = 20;
/// The room for a scroll bar; the bar itself is half as wide.
inline constexpr int scrollBarExtent = 12;
inline constexpr int leastScrollBarLength = 24;

void paintSlider(QPainter& painter, const QStyleOptionSlider& option);
/// Returns `std::nullopt` for parts that are as in other styles.
[[nodiscard]] std::optional<QRect> sliderRect(const QStyleOptionSlider& option,
                                              QStyle::SubControl part);

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QWidget* widget);
[[nodiscard]] QRect scrollBarRect(const QStyleOptionSlider& option, QStyle::SubControl part);

}  // namespace vantorel
