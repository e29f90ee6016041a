#include "hosts/gtk-dialog/GtkDialogPlace.h"

#include "hosts/gtk/GtkReferences.h"

namespace vantorel {
namespace {

constexpr guint besidePage = 6;

/// Puts a row into a box in place of one of its children, which becomes the row's first.
GtkWidget* wrappedInRow(GtkBox* box, GtkWidget* child)
{
    gboolean expands = FALSE;
    gboolean fills = FALSE;
    guint padding = 0;
    int position = 0;
    GtkPackType packing = GTK_PACK_START;
    gtk_box_query_child_packing(box, child, &expands, &fills, &padding, &packing);
    gtk_container_child_get(GTK_CONTAINER(box), child, "position", &position, nullptr);
    GtkWidget* row = newBox(GTK_ORIENTATION_HORIZONTAL, 0);
    const auto kept = GtkReference<GtkWidget>::sink(child);
    gtk_container_remove(GTK_CONTAINER(box), child);
    gtk_box_pack_start(GTK_BOX(row), child, expands, fills, 0);
    if (packing == GTK_PACK_START) {
        gtk_box_pack_start(box, row, expands, fills, padding);
    } else {
        gtk_box_pack_end(box, row, expands, fills, padding);
    }
    gtk_box_reorder_child(box, row, position);
    gtk_widget_show(row);
    return row;
}

}  // namespace

GtkWidget* chooserIn(GtkWidget* container)
{
    GtkWidget* found = nullptr;
    GList* children = gtk_container_get_children(GTK_CONTAINER(container));
    for (const GList* child = children; child != nullptr; child = child->next) {
        if (GTK_IS_COLOR_CHOOSER_WIDGET(child->data)) found = GTK_WIDGET(child->data);
    }
    g_list_free(children);
    return found;
}

bool putBeside(GtkWidget* widget, GtkWidget* other)
{
    GtkWidget* parent = gtk_widget_get_parent(other);
    if (!GTK_IS_BOX(parent)) return false;
    GtkBox* row = GTK_BOX(wrappedInRow(GTK_BOX(parent), other));
    gtk_box_pack_start(row, widget, TRUE, TRUE, besidePage);
    gtk_box_reorder_child(row, widget, 0);
    gtk_widget_show(widget);
    return true;
}

bool putBelow(GtkWidget* widget, GtkWidget* box)
{
    if (!GTK_IS_BOX(box)) return false;
    gtk_box_pack_start(GTK_BOX(box), widget, TRUE, TRUE, besidePage);
    gtk_widget_show(widget);
    return true;
}

GtkRequisition spareRoomOf(GtkWidget* window)
{
    GtkRequisition least;
    gtk_widget_get_preferred_size(window, &least, nullptr);
    // Where a window that is not shown yet will be is not known.
    GdkWindow* place = gtk_widget_get_window(window);
    if (place == nullptr) place = gdk_screen_get_root_window(gtk_widget_get_screen(window));
    int x = 0;
    int y = 0;
    gdk_window_get_origin(place, &x, &y);
    const GdkRectangle room = workAreaAt(place, x, y);
    return {room.width - least.width, room.height - least.height};
}

}  // namespace vantorel
