#pragma once

#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionMenuItem>

/// Menus and tool tips of the panel's style.
namespace vantorel {

/// Room around the rows of a menu.
inline constexpr int menuMargin = 4;

/// Lets a menu have round corners if the platform can show what is behind them. To be called before
/// the menu's first showing.
void prepareMenu(QMenu& menu);

void paintMenu(QPainter& painter, const QStyleOption& option, const QWidget* widget);
/// The ground of the list of a combo box, which is open like a menu.
void paintMenuGround(QPainter& painter, const QStyleOption& option);
void paintMenuRow(QPainter& painter, const QStyleOptionMenuItem& option, const QStyle& style);
void paintMenuScroller(QPainter& painter, const QStyleOption& option);
/// The size of a row whose text has the width of `contents`.
[[nodiscard]] QSize menuRowSize(const QStyleOptionMenuItem& option, const QSize& contents);

void paintToolTip(QPainter& painter, const QStyleOption& option);

}  // namespace vantorel
