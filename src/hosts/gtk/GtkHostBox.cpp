#include "hosts/gtk/GtkHostBox.h"

#include "hosts/gtk/GtkReferences.h"

#include <string>

namespace vantorel {
namespace {

using Reaction = std::function<void(int, int)>;

constexpr const char* reactionKey = "vantorel-box-reaction";
constexpr const char* placeKey = "vantorel-place";

void allocateChild(GtkWidget* child, gpointer data)
{
    if (!gtk_widget_get_visible(child)) return;
    const auto& room = *static_cast<const GtkAllocation*>(data);
    GtkAllocation place = room;
    if (const PixelRect* set = placeInHostBox(child)) {
        place = {room.x + set->x, room.y + set->y, set->width, set->height};
    }
    // GTK wants a child to be asked before it is given anything.
    GtkRequisition least;
#if GTK_MAJOR_VERSION >= 3
    gtk_widget_get_preferred_size(child, &least, nullptr);
#else
    gtk_widget_size_request(child, &least);
#endif
    place.width = MAX(place.width, 1);
    place.height = MAX(place.height, 1);
    gtk_widget_size_allocate(child, &place);
}

void allocateBox(GtkWidget* box, GtkAllocation* allocation)
{
    gtk_widget_set_allocation(box, allocation);
    const bool hasWindow = gtk_widget_get_has_window(box);
    if (hasWindow && gtk_widget_get_realized(box)) {
        gdk_window_move_resize(gtk_widget_get_window(box), allocation->x, allocation->y,
                               allocation->width, allocation->height);
    }
    if (const auto* reaction =
            static_cast<const Reaction*>(g_object_get_data(G_OBJECT(box), reactionKey))) {
        callFromC(*reaction, allocation->width, allocation->height);
    }
    GtkAllocation room = *allocation;
    if (hasWindow) room.x = room.y = 0;
    gtk_container_foreach(GTK_CONTAINER(box), allocateChild, &room);
}

#if GTK_MAJOR_VERSION >= 3
void askForNothing(GtkWidget*, gint* least, gint* natural)
{
    *least = 0;
    *natural = 0;
}
#else
void askForNothing(GtkWidget*, GtkRequisition* least)
{
    *least = {0, 0};
}
#endif

void initializeBoxClass(gpointer classPointer, gpointer)
{
    auto* widgetClass = static_cast<GtkWidgetClass*>(classPointer);
    widgetClass->size_allocate = allocateBox;
#if GTK_MAJOR_VERSION >= 3
    widgetClass->get_preferred_width = askForNothing;
    widgetClass->get_preferred_height = askForNothing;
#else
    widgetClass->size_request = askForNothing;
#endif
}

/// Several libraries of a process can contain this code, and a type can be registered only once:
/// each library has a type of its own.
GType hostBoxType()
{
    static const GType type = [] {
        static const char mine = 0;
        const std::string name =
            "VantorelBox_" + std::to_string(reinterpret_cast<std::uintptr_t>(&mine));
        return g_type_register_static_simple(GTK_TYPE_FIXED, name.c_str(), sizeof(GtkFixedClass),
                                             initializeBoxClass, sizeof(GtkFixed), nullptr,
                                             static_cast<GTypeFlags>(0));
    }();
    return type;
}

}  // namespace

GtkWidget* newHostBox(bool clips)
{
    auto* box = static_cast<GtkWidget*>(g_object_new(hostBoxType(), nullptr));
    gtk_widget_set_has_window(box, clips);
    return box;
}

void setHostBoxReaction(GtkWidget* box, std::function<void(int width, int height)> reaction)
{
    g_object_set_data_full(G_OBJECT(box), reactionKey, new Reaction(std::move(reaction)),
                           [](gpointer data) { delete static_cast<Reaction*>(data); });
}

void placeInHostBox(GtkWidget* child, const PixelRect& place)
{
    if (const PixelRect* set = placeInHostBox(child); set != nullptr && *set == place) return;
    g_object_set_data_full(G_OBJECT(child), placeKey, new PixelRect(place),
                           [](gpointer data) { delete static_cast<PixelRect*>(data); });
    if (GtkWidget* box = gtk_widget_get_parent(child)) queueAllocation(box);
}

const PixelRect* placeInHostBox(GtkWidget* child)
{
    return static_cast<const PixelRect*>(g_object_get_data(G_OBJECT(child), placeKey));
}

}  // namespace vantorel
