#include <gtk/gtk.h>

#include <cstdio>
#include <string>

/// A GTK module for tests: writes where the widgets of a program's colour dialog are to the file
/// that VANTOREL_PLACES names, ten times a second. A line is `place NAME X Y WIDTH HEIGHT`,
/// relative to the window; `color-button` is a button of a form; `tip NAME TEXT` is its tool tip;
/// `report COUNT` is the number of the report; `swatches COUNT` is the number of the chooser's
/// swatches.
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

/// The buttons of windows that are not a GtkDialog.
void addLabel(Report& report, GtkWidget* label)
{
    GtkWidget* button = gtk_widget_get_ancestor(label, GTK_TYPE_BUTTON);
    if (button == nullptr) return;
    const std::string text = gtk_label_get_text(GTK_LABEL(label));
    if (text == "OK") addPlace(report, button, "ok");
    if (text == "Cancel") addPlace(report, button, "cancel");
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
    if (GTK_IS_LABEL(widget)) addLabel(report, widget);
    if (GTK_IS_COLOR_BUTTON(widget)) addPlace(report, widget, "color-button");
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), addWidget, data);
}

void addDialog(GtkWidget* dialog, const char* file)
{
    Report report{dialog, {}};
    addWidget(dialog, &report);
    const std::pair<const char*, int> answers[] = {{"ok", GTK_RESPONSE_OK},
                                                   {"cancel", GTK_RESPONSE_CANCEL}};
    for (const auto& [name, answer] : answers) {
        if (!GTK_IS_DIALOG(dialog)) break;
        GtkWidget* button = gtk_dialog_get_widget_for_response(GTK_DIALOG(dialog), answer);
        if (button != nullptr) addPlace(report, button, name);
    }
    static int reports = 0;
    report.text += "report " + std::to_string(++reports) + '\n';
    report.text += "swatches " + std::to_string(report.swatches) + '\n';
    g_file_set_contents(file, report.text.data(), static_cast<gssize>(report.text.size()), nullptr);
}

struct Search {
    GType type;
    bool isFound = false;
};

void searchIn(GtkWidget* widget, gpointer data)
{
    auto& search = *static_cast<Search*>(data);
    if (g_type_is_a(G_OBJECT_TYPE(widget), search.type)) {
        search.isFound = true;
    } else if (GTK_IS_CONTAINER(widget)) {
        gtk_container_forall(GTK_CONTAINER(widget), searchIn, data);
    }
}

bool has(GtkWidget* widget, GType type)
{
    Search search{type};
    searchIn(widget, &search);
    return search.isFound;
}

/// Whether a window is a dialog, or has controls, of the kinds in which the page can be.
bool choosesColors(GtkWidget* window)
{
    // Programs still use the older ones.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return GTK_IS_COLOR_CHOOSER_DIALOG(window) || has(window, GTK_TYPE_COLOR_SELECTION) ||
           has(window, GTK_TYPE_COLOR_BUTTON);
#pragma GCC diagnostic pop
}

/// Whether a window waits for a dialog that it has opened. Two reports in one file would take
/// turns.
bool hasDialog(const GtkWidget* window, const GList* windows)
{
    for (const GList* other = windows; other != nullptr; other = other->next) {
        auto* dialog = GTK_WIDGET(other->data);
        if (gtk_widget_get_mapped(dialog) &&
            GTK_WIDGET(gtk_window_get_transient_for(GTK_WINDOW(dialog))) == window)
            return true;
    }
    return false;
}

gboolean writePlaces(gpointer file)
{
    GList* windows = gtk_window_list_toplevels();
    for (const GList* window = windows; window != nullptr; window = window->next) {
        auto* widget = GTK_WIDGET(window->data);
        if (!gtk_widget_get_mapped(widget) || hasDialog(widget, windows)) continue;
        if (choosesColors(widget)) addDialog(widget, static_cast<const char*>(file));
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
    if (file == nullptr) return;
    // After the toolkit has laid out its windows.
    g_timeout_add_full(G_PRIORITY_LOW, intervalInMilliseconds, writePlaces, g_strdup(file),
                       nullptr);
}
