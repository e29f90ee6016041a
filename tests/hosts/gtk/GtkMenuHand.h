#pragma once

#include "GtkHand.h"
#include "host/HostMenu.h"
#include "hosts/gtk/GtkTexts.h"

#include <gdk/gdkkeysyms.h>

#include <algorithm>
#include <string>
#include <vector>

/// What a test chooses in menus and lists of GTK.
namespace vantorel {

/// The text of the first label in a widget; empty if it has none.
inline std::u16string labelIn(GtkWidget* widget)
{
    if (GTK_IS_LABEL(widget)) return coreText(gtk_label_get_text(GTK_LABEL(widget)));
    if (!GTK_IS_CONTAINER(widget)) return {};
    for (GtkWidget* part : rowsOf(widget)) {
        if (std::u16string text = labelIn(part); !text.empty()) return text;
    }
    return {};
}

/// As GTK's main loop does it: what opens a submenu is the current event.
inline void pressKeyInMenu(GtkWidget* menu, guint key)
{
    const GdkEventCopy event = newKeyEvent(menu, key, 0);
    gtk_main_do_event(event.get());
}

/// Chooses a row of the menu that is attached to a widget, by the titles that lead to it. Returns
/// false if there is no such row that can be chosen.
inline bool chooseInMenu(GtkWidget* attached, const std::vector<std::u16string>& path)
{
    GtkWidget* first = openedMenu(attached);
    GtkWidget* menu = first;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const bool isLast = i + 1 == path.size();
        const std::vector<GtkWidget*> rows = rowsOf(menu);
        const auto found = std::find_if(rows.begin(), rows.end(), [&](GtkWidget* row) {
            GtkWidget* submenu = gtk_menu_item_get_submenu(GTK_MENU_ITEM(row));
            return labelIn(row) == path[i] && gtk_widget_get_sensitive(row) &&
                   (submenu == nullptr) == isLast;
        });
        if (found == rows.end()) {
            gtk_menu_shell_deactivate(GTK_MENU_SHELL(first));
            return false;
        }
        if (isLast) {
            gtk_menu_shell_activate_item(GTK_MENU_SHELL(menu), *found, TRUE);
        } else {
            gtk_menu_shell_select_item(GTK_MENU_SHELL(menu), *found);
            pressKeyInMenu(menu, GDK_KEY_Right);
            menu = gtk_menu_item_get_submenu(GTK_MENU_ITEM(*found));
        }
    }
    return true;
}

/// Chooses a row of the list that is open and shows `rows`. A list paints its rows; the hand
/// reaches them by keys. Returns false if there is no such row.
inline bool chooseInList(const HostMenu& rows, const std::vector<std::u16string>& path)
{
    GtkWidget* list = openedList();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const HostMenuItem& item) {
        return item.title == path.front() && !item.separator;
    });
    if (found == rows.end() || path.size() > 1) {
        sendKey(list, GDK_KEY_Escape);
        return false;
    }
    const auto below = std::count_if(found + 1, rows.end(),
                                     [](const HostMenuItem& item) { return !item.separator; });
    sendKey(list, GDK_KEY_End);
    for (std::ptrdiff_t i = 0; i < below; ++i)
        sendKey(list, GDK_KEY_Up);
    sendKey(list, GDK_KEY_Return);
    return true;
}

}  // namespace vantorel
