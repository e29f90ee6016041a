#pragma once

#include <QPainter>
#include <QStyleOptionTab>
#include <QStyleOptionViewItem>

class QStyle;

/// Tabs as words, and rows of lists, in the panel's style.
namespace vantorel {

/// Left and right of a tab's word.
inline constexpr int tabPadding = 8;

void paintTab(QPainter& painter, const QStyleOptionTab& option);
void paintTabLabel(QPainter& painter, const QStyleOptionTab& option, const QStyle& style);
/// The size of a tab whose word has the size `contents` in the regular weight, with the room that
/// the word takes in bold, so that the row does not move when another tab is chosen.
[[nodiscard]] QSize tabSize(const QStyleOptionTab& option, const QSize& contents);

/// Whether a row belongs to a list that is open like a menu.
[[nodiscard]] bool isInPopUp(const QStyleOptionViewItem& option);
/// The ground of a row, which is seen when it is chosen or under the pointer.
void paintRow(QPainter& painter, const QStyleOptionViewItem& option);

}  // namespace vantorel
