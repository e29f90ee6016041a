#include <gtk/gtk.h>

#include <cstring>

/// A program of somebody else that opens a window and no colour dialog. Ends when the window has
/// been painted; with the argument `idle`, never.
int main(int argc, char** argv)
{
    gtk_init(&argc, &argv);
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_container_add(GTK_CONTAINER(window), gtk_button_new_with_label("Nothing to choose"));
    gtk_widget_show_all(window);
    if (argc < 2 || std::strcmp(argv[1], "idle") != 0) {
        const auto end = [](gpointer) {
            gtk_main_quit();
            return G_SOURCE_REMOVE;
        };
        g_idle_add_full(G_PRIORITY_LOW, end, nullptr, nullptr);
    }
    gtk_main();
    return 0;
}
