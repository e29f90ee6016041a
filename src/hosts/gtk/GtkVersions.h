#pragma once

#include <gtk/gtk.h>

/// The few calls that GTK 2 and GTK 3 do not share, under one name each. Everything else in this
/// folder is written once for both.
namespace vantorel {

/// Device pixels per pixel of GTK.
[[nodiscard]] inline int scaleFactorOf(GtkWidget* widget)
{
#if GTK_MAJOR_VERSION >= 3
    return gtk_widget_get_scale_factor(widget);
#else
    static_cast<void>(widget);
    return 1;
#endif
}

/// A horizontal or vertical box.
[[nodiscard]] inline GtkWidget* newBox(GtkOrientation orientation, int spacing)
{
#if GTK_MAJOR_VERSION >= 3
    return gtk_box_new(orientation, spacing);
#else
    return orientation == GTK_ORIENTATION_HORIZONTAL ? gtk_hbox_new(FALSE, spacing)
                                                     : gtk_vbox_new(FALSE, spacing);
#endif
}

/// A vertical scroll bar.
[[nodiscard]] inline GtkWidget* newScrollbar(GtkAdjustment* adjustment)
{
#if GTK_MAJOR_VERSION >= 3
    return gtk_scrollbar_new(GTK_ORIENTATION_VERTICAL, adjustment);
#else
    return gtk_vscrollbar_new(adjustment);
#endif
}

/// A widget to paint on, which gets all events. Later widgets of its container can lie on it.
[[nodiscard]] inline GtkWidget* newPaintArea()
{
#if GTK_MAJOR_VERSION >= 3
    return gtk_drawing_area_new();
#else
    // A window of its own would hide them: they paint into the window of the container.
    GtkWidget* area = gtk_event_box_new();
    gtk_event_box_set_visible_window(GTK_EVENT_BOX(area), FALSE);
    return area;
#endif
}

[[nodiscard]] inline GtkAdjustment* newAdjustment(double lower, double upper, double step,
                                                  double page)
{
#if GTK_MAJOR_VERSION >= 3
    return gtk_adjustment_new(lower, lower, upper, step, page, page);
#else
    return GTK_ADJUSTMENT(gtk_adjustment_new(lower, lower, upper, step, page, page));
#endif
}

/// Marks a part of a widget, relative to its corner, for redrawing.
inline void queueDrawing(GtkWidget* widget, int x, int y, int width, int height)
{
#if GTK_MAJOR_VERSION < 3
    // GTK 2 counts from the corner of the window.
    if (!gtk_widget_get_has_window(widget)) {
        GtkAllocation place;
        gtk_widget_get_allocation(widget, &place);
        x += place.x;
        y += place.y;
    }
#endif
    gtk_widget_queue_draw_area(widget, x, y, width, height);
}

/// Allocates the children of a widget anew. Its own size stays.
inline void queueAllocation(GtkWidget* widget)
{
#if GTK_MAJOR_VERSION >= 3
    gtk_widget_queue_allocate(widget);
#else
    gtk_widget_queue_resize_no_redraw(widget);
#endif
}

/// The part of the screen beside desktop bars, on the monitor at a point of the screen.
[[nodiscard]] inline GdkRectangle workAreaAt(GdkWindow* window, int x, int y)
{
    GdkRectangle area;
#if GTK_MAJOR_VERSION >= 3
    GdkMonitor* monitor = gdk_display_get_monitor_at_point(gdk_window_get_display(window), x, y);
    gdk_monitor_get_workarea(monitor, &area);
#else
    GdkScreen* screen = gdk_window_get_screen(window);
    gdk_screen_get_monitor_geometry(screen, gdk_screen_get_monitor_at_point(screen, x, y), &area);
#endif
    return area;
}

/// The item of a menu that the keys have reached, or null.
[[nodiscard]] inline GtkWidget* selectedItemOf(GtkWidget* menu)
{
#if GTK_MAJOR_VERSION >= 3
    return gtk_menu_shell_get_selected_item(GTK_MENU_SHELL(menu));
#else
    return GTK_MENU_SHELL(menu)->active_menu_item;
#endif
}

/// Takes the pointer and the keyboard for a pop-up window that is shown. Returns false, having
/// taken neither, if another program has one of them.
[[nodiscard]] inline bool grabInput(GdkWindow* window)
{
#if GTK_MAJOR_VERSION >= 3
    GdkSeat* seat = gdk_display_get_default_seat(gdk_window_get_display(window));
    return gdk_seat_grab(seat, window, GDK_SEAT_CAPABILITY_ALL, TRUE, nullptr, nullptr, nullptr,
                         nullptr) == GDK_GRAB_SUCCESS;
#else
    const auto pointer = static_cast<GdkEventMask>(GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK |
                                                   GDK_POINTER_MOTION_MASK);
    if (gdk_pointer_grab(window, TRUE, pointer, nullptr, nullptr, GDK_CURRENT_TIME) !=
        GDK_GRAB_SUCCESS) {
        return false;
    }
    if (gdk_keyboard_grab(window, TRUE, GDK_CURRENT_TIME) == GDK_GRAB_SUCCESS) return true;
    gdk_display_pointer_ungrab(gdk_drawable_get_display(window), GDK_CURRENT_TIME);
    return false;
#endif
}

inline void ungrabInput(GdkWindow* window)
{
#if GTK_MAJOR_VERSION >= 3
    gdk_seat_ungrab(gdk_display_get_default_seat(gdk_window_get_display(window)));
#else
    gdk_display_pointer_ungrab(gdk_drawable_get_display(window), GDK_CURRENT_TIME);
    gdk_display_keyboard_ungrab(gdk_drawable_get_display(window), GDK_CURRENT_TIME);
#endif
}

}  // namespace vantorel
