#include "hosts/gimp/GimpHeaders.h"

#include <gdk/gdkx.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

/// A GTK module for tests: writes what is where in GIMP's windows to the file that VANTOREL_PLACES
/// names, ten times a second:
///
///     place NAME X Y WIDTH HEIGHT     a widget, on the screen
///     window NAME NUMBER              X's number of a window
///     color #RRGGBB                   the foreground colour
///
/// Names of what is in a dialog begin with "dialog.", in GIMP's main window with "main.".
namespace {

struct Report {
    std::string prefix;
    std::string text;
};

void addPlace(Report& report, GtkWidget* widget, const std::string& name)
{
    GtkWidget* window = gtk_widget_get_toplevel(widget);
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, window, 0, 0, &x, &y);
    int left = 0;
    int top = 0;
    gdk_window_get_origin(gtk_widget_get_window(window), &left, &top);
    GtkAllocation size;
    gtk_widget_get_allocation(widget, &size);
    // A widget that has no size yet has no place either.
    if (size.width <= 1 || !gtk_widget_get_mapped(widget)) return;
    report.text += "place " + report.prefix + name + ' ' + std::to_string(x + left) + ' ' +
                   std::to_string(y + top) + ' ' + std::to_string(size.width) + ' ' +
                   std::to_string(size.height) + '\n';
}

std::string foregroundOf(GtkWidget* editor)
{
    GObject* context = nullptr;
    g_object_get(editor, "context", &context, nullptr);
    if (context == nullptr) return {};
    double channels[3] = {};
#if GIMP_MAJOR_VERSION >= 3
    GeglColor* color = nullptr;
    g_object_get(context, "foreground", &color, nullptr);
    double pixel[4] = {};
    gegl_color_get_pixel(color, babl_format("R'G'B'A double"), pixel);
    std::copy(pixel, pixel + 3, channels);
    g_object_unref(color);
#else
    GimpRGB* color = nullptr;
    g_object_get(context, "foreground", &color, nullptr);
    channels[0] = color->r;
    channels[1] = color->g;
    channels[2] = color->b;
    g_free(color);
#endif
    g_object_unref(context);
    std::string code = "#";
    for (const double channel : channels) {
        char digits[8];
        std::snprintf(digits, sizeof digits, "%02x",
                      static_cast<unsigned>(std::lround(channel * 255)));
        code += digits;
    }
    return code;
}

void addWidget(GtkWidget* widget, gpointer data)
{
    auto& report = *static_cast<Report*>(data);
    const std::string name = gtk_widget_get_name(widget);
    const std::string type = G_OBJECT_TYPE_NAME(widget);
    if (name != type) addPlace(report, widget, name);
    if (type == "GimpFgBgEditor") {
        addPlace(report, widget, "foreground");
        report.text += "color " + foregroundOf(widget) + '\n';
    }
    GtkWidget* parent = gtk_widget_get_parent(widget);
    if (type == "VantorelColorSelector" && GTK_IS_NOTEBOOK(parent)) {
        GtkWidget* label = gtk_notebook_get_tab_label(GTK_NOTEBOOK(parent), widget);
        if (label != nullptr) addPlace(report, label, "tab");
    }
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), addWidget, data);
}

void addWindow(Report& report, GtkWidget* window)
{
    const std::string type = G_OBJECT_TYPE_NAME(window);
    report.prefix = type == "GimpImageWindow" ? "main." : GTK_IS_DIALOG(window) ? "dialog." : "";
    addWidget(window, &report);
    report.text += "window " + type + ' ' +
                   std::to_string(GDK_WINDOW_XID(gtk_widget_get_window(window))) + '\n';
    if (!GTK_IS_DIALOG(window)) return;
    for (const auto& [name, answer] :
         {std::pair("ok", GTK_RESPONSE_OK), std::pair("cancel", GTK_RESPONSE_CANCEL)}) {
        GtkWidget* button = gtk_dialog_get_widget_for_response(GTK_DIALOG(window), answer);
        if (button != nullptr) addPlace(report, button, name);
    }
}

gboolean writePlaces(gpointer file)
{
    Report report;
    GList* windows = gtk_window_list_toplevels();
    for (const GList* window = windows; window != nullptr; window = window->next) {
        if (gtk_widget_get_mapped(GTK_WIDGET(window->data))) {
            addWindow(report, GTK_WIDGET(window->data));
        }
    }
    g_list_free(windows);
    g_file_set_contents(static_cast<const char*>(file), report.text.data(),
                        static_cast<gssize>(report.text.size()), nullptr);
    return G_SOURCE_CONTINUE;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) void gtk_module_init(int*, char***);

extern "C" void gtk_module_init(int*, char***)
{
    const char* file = g_getenv("VANTOREL_PLACES");
    constexpr unsigned intervalInMilliseconds = 100;
    if (file != nullptr) g_timeout_add(intervalInMilliseconds, writePlaces, g_strdup(file));
}
