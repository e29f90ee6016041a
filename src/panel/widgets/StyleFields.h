#pragma once

#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QStyleOptionSpinBox>

class QStyle;

/// Text fields, combo boxes, spin boxes and frames of the panel's style.
namespace vantorel {

/// Room between the frame of a field and its text, beyond the two pixels that Qt leaves.
inline constexpr int fieldPadding = 4;

/// The least height of buttons, fields and combo boxes that a layout places.
inline constexpr int controlHeight = 28;

void paintField(QPainter& painter, const QStyleOption& option);
void paintComboBox(QPainter& painter, const QStyleOptionComboBox& option);
/// Paints the picture and the text of a combo box; a text that is too long is elided.
void paintComboBoxLabel(QPainter& painter, const QStyleOptionComboBox& option, const QStyle& style,
                        const QWidget* widget);
/// The place of the text, which is free of the arrow.
[[nodiscard]] QRect comboBoxTextRect(const QStyleOptionComboBox& option);
[[nodiscard]] QRect comboBoxArrowRect(const QStyleOptionComboBox& option);
/// The width of a combo box beside its text.
[[nodiscard]] int comboBoxChrome();

void paintSpinBox(QPainter& painter, const QStyleOptionSpinBox& option, const QRect& up,
                  const QRect& down);

/// A frame around other widgets, or a line as a QFrame.
void paintFrameWidget(QPainter& painter, const QStyleOptionFrame& option, const QWidget* widget);

}  // namespace vantorel
