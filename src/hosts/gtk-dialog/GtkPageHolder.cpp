#include "hosts/gtk-dialog/GtkPageHolder.h"

#include "hosts/gtk/GtkHostBox.h"
#include "hosts/gtk/GtkTextScale.h"

#include <atk/atk.h>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

constexpr guint besidePage = 6;

/// What others see to be ours.
constexpr const char* holderName = "vantorel-page";

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

GtkPageHolder::GtkPageHolder(std::function<void()> sizeDidChange)
    : GtkMirrored({0, 0, 0, 0}, newHostBox(true)), _sizeDidChange(std::move(sizeDidChange))
{
    gtk_widget_set_name(widget(), holderName);
    setHostBoxReaction(widget(), [this](int width, int height) { takeSize(width, height); });
}

void GtkPageHolder::setLeastSize(HostSize size)
{
    _leastSize = size;
    setFrame({0, 0, std::max(size.width, frame().width), std::max(size.height, frame().height)});
    const auto pixels = [](double points) {
        return static_cast<int>(std::ceil(points * gtkTextScale()));
    };
    if (widget() == nullptr) return;
    gtk_widget_set_size_request(widget(), pixels(size.width), pixels(size.height));
}

bool GtkPageHolder::putInto(GtkDialog* dialog)
{
    GtkWidget* content = gtk_dialog_get_content_area(dialog);
    if (!GTK_IS_BOX(content) || widget() == nullptr) return false;
    GtkWidget* chooser = chooserIn(content);
    // Beside the dialog's own controls, or below what a program has made of them.
    GtkBox* box = GTK_BOX(chooser != nullptr ? wrappedInRow(GTK_BOX(content), chooser) : content);
    gtk_box_pack_start(box, widget(), TRUE, TRUE, besidePage);
    if (chooser != nullptr) gtk_box_reorder_child(box, widget(), 0);
    gtk_widget_show(widget());
    return true;
}

void GtkPageHolder::takeSize(int width, int height)
{
    const double scale = gtkTextScale();
    const HostRect room{0, 0, width / scale, height / scale};
    if (room == frame()) return;
    setFrame(room);
    _sizeDidChange();
}

HostSize GtkPageHolder::grow(HostSize growth)
{
    const HostSize before = frame().size();
    setLeastSize({before.width + growth.width, before.height + growth.height});
    _sizeDidChange();
    return {frame().width - before.width, frame().height - before.height};
}

void GtkPageHolder::takeOut()
{
    GtkWidget* holder = widget();
    GtkWidget* parent = holder != nullptr ? gtk_widget_get_parent(holder) : nullptr;
    if (parent != nullptr) gtk_container_remove(GTK_CONTAINER(parent), holder);
}

}  // namespace vantorel
