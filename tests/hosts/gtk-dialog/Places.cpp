#include <gtk/gtk.h>

#include <cstdio>
#include <string>

/// A GTK module for tests: writes where the widgets of a program's colour dialog are to the file
/// that VANTOREL_PLACES names, ten times a second. A line is `place NAME X Y WIDTH HEIGHT`,
/// relative to the window; `tip NAME TEXT` is its tool tip; `swatches COUNT` is the number of the
/// chooser's swatches.
namespace {

struct Report {
    GtkWidget* window;
    std::string text;
    int swatches = 0;
};

void addPlace(Report& report, GtkWidget* widget, const char* name)
{
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, report.window, 0, 0, &x, &y);
    report.text += "place " + std::string(name) + ' ' + std::to_string(x) + ' ' +
                   std::to_string(y) + ' ' +
                   std::to_string(gtk_widget_get_allocated_width(widget)) + ' ' +
                   std::to_string(gtk_widget_get_allocated_height(widget)) + '\n';
    gchar* tip = gtk_widget_get_tooltip_text(widget);
    if (tip != nullptr) report.text += "tip " + std::string(name) + ' ' + tip + '\n';
    g_free(tip);
}

void addWidget(GtkWidget* widget, gpointer data)
{
    auto& report = *static_cast<Report*>(data);
    // A widget that has no size yet has no place either.
    if (!gtk_widget_get_mapped(widget) || gtk_widget_get_allocated_width(widget) <= 1) return;
    const std::string name = gtk_widget_get_name(widget);
    const std::string type = G_OBJECT_TYPE_NAME(widget);
    if (name != type) addPlace(report, widget, name.c_str());
    if (type == "GtkColorSwatch") ++report.swatches;
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), addWidget, data);
}

void addDialog(GtkWidget* dialog, const char* file)
{
    Report report{dialog, {}};
    addWidget(dialog, &report);
    const std::pair<const char*, int> answers[] = {{"ok", GTK_RESPONSE_OK},
                                                   {"cancel", GTK_RESPONSE_CANCEL}};
    for (const auto& [name, answer] : answers) {
        GtkWidget* button = gtk_dialog_get_widget_for_response(GTK_DIALOG(dialog), answer);
        if (button != nullptr) addPlace(report, button, name);
    }
    report.text += "swatches " + std::to_string(report.swatches) + '\n';
    g_file_set_contents(file, report.text.data(), static_cast<gssize>(report.text.size()), nullptr);
}

gboolean writePlaces(gpointer file)
{
    GList* windows = gtk_window_list_toplevels();
    for (const GList* window = windows; window != nullptr; window = window->next) {
        auto* widget = GTK_WIDGET(window->data);
        if (GTK_IS_COLOR_CHOOSER_DIALOG(widget) && gtk_widget_get_mapped(widget)) {
            addDialog(widget, static_cast<const char*>(file));
        }
    }
    g_list_free(windows);
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
