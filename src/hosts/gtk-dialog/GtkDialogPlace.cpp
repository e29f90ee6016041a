#include "hosts/gtk-dialog/GtkDialogPlace.h"

#include "hosts/gtk/GtkReferences.h"

namespace vantorel {
namespace {

constexpr guint besidePage = 6;

/// The child of a container that is a chooser of colours; null if there is none.
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

bool putBesideControls(GtkWidget* widget, GtkDialog* dialog)
{
    GtkWidget* content = gtk_dialog_get_content_area(dialog);
    if (!GTK_IS_BOX(content)) return false;
    GtkWidget* chooser = chooserIn(content);
    GtkBox* box = GTK_BOX(chooser != nullptr ? wrappedInRow(GTK_BOX(content), chooser) : content);
    gtk_box_pack_start(box, widget, TRUE, TRUE, besidePage);
    if (chooser != nullptr) gtk_box_reorder_child(box, widget, 0);
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
