#pragma once

#include "hosts/gtk/GtkHostCustomView.h"

#include <array>
#include <functional>
#include <vector>

/// What a test does to widgets of GTK, and what it finds on the screen.
namespace vantorel {

/// Handles all events that have arrived.
inline void handleGtkEvents()
{
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

/// Lets the program run until something has happened. Returns false if that takes ten seconds.
[[nodiscard]] inline bool runGtkUntil(const std::function<bool()>& hasHappened)
{
    bool isLate = false;
    GtkDeferral limit;
    limit.callAfter(10000, [&] { isLate = true; });
    while (!hasHappened() && !isLate)
        g_main_context_iteration(nullptr, TRUE);
    return !isLate;
}

/// A new event that has come to a widget from the pointer or the keyboard.
[[nodiscard]] inline GdkEventCopy newGtkEvent(GtkWidget* widget, GdkEventType type)
{
    GdkEventCopy event(gdk_event_new(type));
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(widget)));
#if GTK_MAJOR_VERSION >= 3
    GdkSeat* seat = gdk_display_get_default_seat(gtk_widget_get_display(widget));
    gdk_event_set_device(event.get(), type == GDK_KEY_PRESS ? gdk_seat_get_keyboard(seat)
                                                            : gdk_seat_get_pointer(seat));
#endif
    return event;
}

/// A press, move or release at a place of a view with these bounds, in its own coordinates.
inline void sendMouse(GtkWidget* widget, HostRect bounds, GdkEventType type, HostPoint at,
                      guint state = 0)
{
    const PixelPoint place = pixelPoint(at, bounds, 1);
    const GdkEventCopy event = newGtkEvent(widget, type);
    if (type == GDK_MOTION_NOTIFY) {
        event->motion.x = place.x;
        event->motion.y = place.y;
        event->motion.state = state;
    } else {
        event->button.x = place.x;
        event->button.y = place.y;
        event->button.button = 1;
        event->button.state = state;
    }
    gtk_widget_event(widget, event.get());
}
inline void sendMouse(const GtkHostCustomView& view, GdkEventType type, HostPoint at,
                      guint state = 0)
{
    sendMouse(view.activeWidget(), view.bounds(), type, at, state);
}

[[nodiscard]] inline GdkEventCopy newKeyEvent(GtkWidget* widget, guint key, guint state)
{
    GdkEventCopy event = newGtkEvent(widget, GDK_KEY_PRESS);
    event->key.keyval = key;
    event->key.state = state;
    // Bindings are found by the key's place on the keyboard.
    GdkKeymapKey* keys = nullptr;
    int count = 0;
    GdkKeymap* keymap = gdk_keymap_get_for_display(gtk_widget_get_display(widget));
    if (gdk_keymap_get_entries_for_keyval(keymap, key, &keys, &count) && count > 0) {
        event->key.hardware_keycode = static_cast<guint16>(keys->keycode);
        event->key.group = static_cast<guint8>(keys->group);
    }
    g_free(keys);
    return event;
}

/// Returns whether the key was used.
inline bool sendKey(GtkWidget* widget, guint key, guint state = 0)
{
    return gtk_widget_event(widget, newKeyEvent(widget, key, state).get()) != FALSE;
}

/// The mapped pop-up window of a list, or null.
[[nodiscard]] inline GtkWidget* openedList()
{
    GtkWidget* found = nullptr;
    GList* windows = gtk_window_list_toplevels();
    for (const GList* entry = windows; entry != nullptr; entry = entry->next) {
        GtkWidget* window = GTK_WIDGET(entry->data);
        if (gtk_widget_get_mapped(window) && g_object_get_data(G_OBJECT(window), "vantorel-list")) {
            found = window;
        }
    }
    g_list_free(windows);
    return found;
}

/// The menu that is attached to a widget, or null.
[[nodiscard]] inline GtkWidget* openedMenu(GtkWidget* widget)
{
    GList* menus = gtk_menu_get_for_attach_widget(widget);
    return menus != nullptr ? GTK_WIDGET(menus->data) : nullptr;
}

[[nodiscard]] inline std::vector<GtkWidget*> rowsOf(GtkWidget* menu)
{
    std::vector<GtkWidget*> rows;
    GList* children = gtk_container_get_children(GTK_CONTAINER(menu));
    for (const GList* child = children; child != nullptr; child = child->next)
        rows.push_back(GTK_WIDGET(child->data));
    g_list_free(children);
    return rows;
}

/// Red, green and blue of a pixel on the screen, in the window of a widget.
[[nodiscard]] inline std::array<int, 3> pixelOf(GtkWidget* widget, int x, int y)
{
    GdkWindow* window = gtk_widget_get_window(widget);
#if GTK_MAJOR_VERSION >= 3
    const auto picture =
        GtkReference<GdkPixbuf>::adopt(gdk_pixbuf_get_from_window(window, x, y, 1, 1));
#else
    const auto picture = GtkReference<GdkPixbuf>::adopt(gdk_pixbuf_get_from_drawable(
        nullptr, window, gdk_drawable_get_colormap(window), x, y, 0, 0, 1, 1));
#endif
    const guchar* bytes = gdk_pixbuf_get_pixels(picture.get());
    return {bytes[0], bytes[1], bytes[2]};
}

}  // namespace vantorel
