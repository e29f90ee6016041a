#include "panel/widgets/StyleMenus.h"

#include "panel/widgets/StyleFields.h"
#include "panel/widgets/StylePainting.h"

#include <QGuiApplication>
#include <QIcon>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace vantorel {
namespace {

constexpr int rowPadding = 8;
/// The column of ticks and icons.
constexpr int markColumn = 20;
constexpr int iconHeight = 16;
/// Between a text and its shortcut or the arrow of a submenu.
constexpr int behindText = 24;
constexpr int separatorHeight = 9;

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// Whether a compositor shows what is behind translucent windows of an X server.
bool hasCompositor(xcb_connection_t& server)
{
    constexpr std::string_view name = "_NET_WM_CM_S0";
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> atom(xcb_intern_atom_reply(
        &server, xcb_intern_atom(&server, 1, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE) return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, FreeReply> owner(
        xcb_get_selection_owner_reply(&server, xcb_get_selection_owner(&server, atom->atom),
                                      nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool canBeTranslucent()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr) return true;
    return hasCompositor(*x11->connection());
}

bool hasMarkColumn(const QStyleOptionMenuItem& option)
{
    return option.menuHasCheckableItems || option.maxIconWidth > 0;
}

int widthOfMarks(const QStyleOptionMenuItem& option)
{
    return hasMarkColumn(option) ? std::max(markColumn, option.maxIconWidth) : 0;
}

void paintSeparator(QPainter& painter, const QStyleOptionMenuItem& option, const QStyle& style)
{
    const ThemeColors colors = themeColors(option);
    if (!option.text.isEmpty()) {
        const QRect room = option.rect.adjusted(rowPadding, 0, -rowPadding, 0);
        painter.setPen(colors.text2);
        style.drawItemText(&painter, room, Qt::AlignVCenter | Qt::AlignLeft, option.palette, true,
                           option.text);
        return;
    }
    const QRectF rect(option.rect);
    const qreal line = lineOnDevicePixels(painter, 1);
    painter.fillRect(
        onDevicePixels(painter, QRectF(rect.left(), rect.center().y(), rect.width(), line)),
        colors.line);
}

/// The size of a row's icon. Pictures that are drawn for every size are square.
QSize markSize(const QStyleOptionMenuItem& option)
{
    if (option.icon.availableSizes().isEmpty()) return {iconHeight, iconHeight};
    return option.icon.actualSize({std::max(iconHeight, option.maxIconWidth), iconHeight});
}

void paintMark(QPainter& painter, const QStyleOptionMenuItem& option, const QRect& room,
               const QColor& color)
{
    if (!option.icon.isNull()) {
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const auto mode =
            isOff(option) ? QIcon::Disabled : (isSelected ? QIcon::Selected : QIcon::Normal);
        const QRect icon = QStyle::alignedRect(
            option.direction, Qt::AlignLeading | Qt::AlignVCenter, markSize(option), room);
        option.icon.paint(&painter, icon, Qt::AlignCenter, mode);
        if (option.checked)
            paintRounded(painter, icon.adjusted(-2, -2, 2, 2), rowRadius, {}, color);
        return;
    }
    if (option.checkType == QStyleOptionMenuItem::NotCheckable || !option.checked) return;
    const QRect mark(room.left(), room.top(), markColumn - menuMargin, room.height());
    paintTick(painter, QStyle::visualRect(option.direction, room, mark), color);
}

}  // namespace

void prepareMenu(QMenu& menu)
{
    static const bool translucent = canBeTranslucent();
    if (translucent) menu.setAttribute(Qt::WA_TranslucentBackground);
}

void paintMenu(QPainter& painter, const QStyleOption& option, const QWidget* widget)
{
    const ThemeColors colors = themeColors(option);
    const bool isRound = widget == nullptr || widget->testAttribute(Qt::WA_TranslucentBackground);
    paintRounded(painter, option.rect, isRound ? menuRadius : 0, colors.base, colors.edge);
}

void paintMenuGround(QPainter& painter, const QStyleOption& option)
{
    painter.fillRect(option.rect, themeColors(option).base);
}

void paintMenuRow(QPainter& painter, const QStyleOptionMenuItem& option, const QStyle& style)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        paintSeparator(painter, option, style);
        return;
    }
    const ThemeColors colors = themeColors(option);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected) && !isOff(option);
    if (isSelected) paintRounded(painter, option.rect, rowRadius, colors.accent, {});
    const QColor text =
        isOff(option) ? colors.textOff : (isSelected ? colors.onAccent : colors.text);

    const QRect inner = option.rect.adjusted(rowPadding, 0, -rowPadding, 0);
    const auto placed = [&](const QRect& rect) {
        return QStyle::visualRect(option.direction, option.rect, rect);
    };
    const int marks = widthOfMarks(option);
    const QRect markRoom(inner.left(), inner.top(), marks, inner.height());
    if (marks > 0) paintMark(painter, option, placed(markRoom), text);

    const auto tab = option.text.indexOf(QLatin1Char('\t'));
    const QString label = option.text.left(tab);
    const QString shortcut = tab >= 0 ? option.text.mid(tab + 1) : QString();
    const bool showsKeys = style.styleHint(QStyle::SH_UnderlineShortcut, &option) != 0;
    const int flags = Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine |
                      (showsKeys ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    painter.save();
    painter.setFont(option.font);
    painter.setPen(text);
    painter.drawText(
        placed(inner.adjusted(marks, 0, 0, 0)),
        flags | static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeading)),
        label);
    if (!shortcut.isEmpty()) {
        if (!isSelected && !isOff(option)) painter.setPen(colors.text2);
        painter.drawText(
            placed(inner),
            flags | static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignTrailing)),
            shortcut);
    }
    painter.restore();
    if (option.menuItemType != QStyleOptionMenuItem::SubMenu) return;
    const bool isMirrored = option.direction == Qt::RightToLeft;
    const QRect arrow(inner.right() - rowPadding, inner.top(), rowPadding, inner.height());
    paintChevron(painter, placed(arrow),
                 isMirrored ? ChevronDirection::left : ChevronDirection::right, text);
}

void paintMenuScroller(QPainter& painter, const QStyleOption& option)
{
    const bool isDown = option.state.testFlag(QStyle::State_DownArrow);
    paintChevron(painter, option.rect, isDown ? ChevronDirection::down : ChevronDirection::up,
                 themeColors(option).text);
}

QSize menuRowSize(const QStyleOptionMenuItem& option, const QSize& contents)
{
    const bool isSeparator = option.menuItemType == QStyleOptionMenuItem::Separator;
    if (isSeparator && option.text.isEmpty()) return {contents.width(), separatorHeight};
    // Lists of combo boxes give the size of the list, not of the text.
    constexpr int aroundText = 12;
    const int height = std::max(controlHeight, option.fontMetrics.height() + aroundText);
    int width = contents.width() + 2 * rowPadding + widthOfMarks(option);
    const bool hasMore = option.menuItemType == QStyleOptionMenuItem::SubMenu ||
                         option.text.contains(QLatin1Char('\t'));
    if (hasMore) width += behindText;
    return {width, height};
}

void paintToolTip(QPainter& painter, const QStyleOption& option)
{
    const ThemeColors colors = themeColors(option);
    paintRounded(painter, option.rect, 0, colors.base, colors.edge);
}

}  // namespace vantorel
