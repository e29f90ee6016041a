#pragma once

#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionToolButton>

/// Buttons, check boxes and radio buttons of the panel's style.
namespace vantorel {

inline constexpr int indicatorSize = 16;

void paintPushButton(QPainter& painter, const QStyleOptionButton& option);
/// The ground of a tool button: without a frame when it rests and is raised automatically.
void paintToolButton(QPainter& painter, const QStyleOption& option);
void paintCheckBox(QPainter& painter, const QStyleOption& option);
void paintRadioButton(QPainter& painter, const QStyleOption& option);

/// Changes the text colour of an option for a button that is chosen, and is filled with the colour
/// of the text.
template <class Option>
[[nodiscard]] Option withChosenText(Option option);

/// The same icon in the colour of the ground, for a tool button that is chosen.
[[nodiscard]] QIcon chosenIcon(const QStyleOptionToolButton& option, qreal devicePixelRatio);

}  // namespace vantorel
