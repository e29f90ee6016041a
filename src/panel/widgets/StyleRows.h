#pragma once

#include <QPainter>
#include <QStyleOptionViewItem>

/// Rows of lists in the panel's style.
namespace vantorel {

/// Whether a row belongs to a list that is open like a menu.
[[nodiscard]] bool isInPopUp(const QStyleOptionViewItem& option);
/// The ground of a row, which is seen when it is chosen or under the pointer.
void paintRow(QPainter& painter, const QStyleOptionViewItem& option);

}  // namespace vantorel
