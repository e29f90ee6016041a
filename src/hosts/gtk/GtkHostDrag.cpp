#include "hosts/gtk/GtkHostDrag.h"

#include "hosts/gtk/CairoCanvas.h"
#include "hosts/gtk/GtkHostEvents.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

constexpr const char* colorType = "application/x-color";
constexpr int bitsOfWord = 16;

struct TargetListUnref {
    void operator()(GtkTargetList* list) const { gtk_target_list_unref(list); }
};
using TargetList = std::unique_ptr<GtkTargetList, TargetListUnref>;

void showPicture(GdkDragContext* context, GtkWidget* source, const HostImage& image)
{
    const int height = static_cast<int>(std::lround(sizeInPixels(image).height));
#if GTK_MAJOR_VERSION >= 3
    const double scale = scaleFactorOf(source);
    const CairoSurface surface = surfaceOfImage(image, scale);
    // The pointer is at the lower left corner, so that the target below it stays visible.
    cairo_surface_set_device_offset(surface.get(), 0, -height * scale);
    gtk_drag_set_icon_surface(context, surface.get());
#else
    static_cast<void>(source);
    const HostSize size = sizeInPixels(image);
    const auto pixmap = GtkReference<GdkPixmap>::adopt(
        gdk_pixmap_new(gdk_get_default_root_window(), std::max(1, static_cast<int>(size.width)),
                       std::max(1, height), -1));
    const CairoContext cairo(gdk_cairo_create(pixmap.get()));
    cairo_set_source_rgb(cairo.get(), 1, 1, 1);
    cairo_paint(cairo.get());
    paintImage(cairo.get(), image, 1);
    gtk_drag_set_icon_pixmap(context, gdk_drawable_get_colormap(pixmap.get()), pixmap.get(),
                             nullptr, 0, height);
#endif
}

}  // namespace

std::optional<std::array<guint16, 4>> colorWords(const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return std::nullopt;
    const auto word = [](double channel) {
        return static_cast<guint16>(channel > 0 ? std::lround(std::min(channel, 1.0) * 65535) : 0);
    };
    return std::array{word(rgb->red), word(rgb->green), word(rgb->blue), word(rgb->alpha)};
}

void runDrag(GtkWidget* source, GdkEvent* event, const HostImage& image,
             const HostPasteboardItem& item)
{
    if (event == nullptr || !gtk_widget_get_mapped(source)) return;
    const auto* text = std::get_if<std::string>(&item);
    const auto words = text == nullptr ? colorWords(std::get<HostColor>(item)) : std::nullopt;
    if (text == nullptr && !words) return;
    const TargetList targets(gtk_target_list_new(nullptr, 0));
    if (text != nullptr) {
        gtk_target_list_add_text_targets(targets.get(), 0);
    } else {
        gtk_target_list_add(targets.get(), gdk_atom_intern_static_string(colorType), 0, 0);
    }

    // Declared before the connections, which end first.
    GtkNestedLoop loop;
    bool isOver = false;
    const auto finish = [&] {
        isOver = true;
        loop.end();
    };
    GtkConnections connections;
    connections.connect<void, GdkDragContext*, GtkSelectionData*, guint, guint>(
        source, "drag-data-get", [&](GdkDragContext*, GtkSelectionData* selection, guint, guint) {
            if (text != nullptr) {
                gtk_selection_data_set_text(selection, text->data(),
                                            static_cast<int>(text->size()));
            } else {
                gtk_selection_data_set(selection, gtk_selection_data_get_target(selection),
                                       bitsOfWord, reinterpret_cast<const guchar*>(words->data()),
                                       static_cast<int>(sizeof(*words)));
            }
        });
    connections.connect<void, GdkDragContext*>(source, "drag-end",
                                               [&](GdkDragContext*) { finish(); });
    connections.connect<void>(source, "destroy", [&] { finish(); });

#if GTK_MAJOR_VERSION >= 3
    GdkDragContext* context =
        gtk_drag_begin_with_coordinates(source, targets.get(), GDK_ACTION_COPY, 1, event, -1, -1);
#else
    GdkDragContext* context = gtk_drag_begin(source, targets.get(), GDK_ACTION_COPY, 1, event);
#endif
    if (context == nullptr) return;
    showPicture(context, source, image);
    // It can be over already, and the loop be ended because the program is about to exit.
    if (!isOver) loop.run();
}

}  // namespace vantorel
