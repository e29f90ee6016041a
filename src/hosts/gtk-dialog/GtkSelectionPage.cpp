#include "hosts/gtk-dialog/GtkSelectionPage.h"

#include "hosts/gtk-dialog/GtkDialogPlace.h"

namespace vantorel {

GtkSelectionPage::GtkSelectionPage(GtkWidget* selection, GtkHostDesktop& desktop)
    : GtkDialogPage(selection, desktop)
{
}

bool GtkSelectionPage::show(const LoadedPlugin& plugin)
{
    static const bool buttonsAreFollowed = [] {
        followButtons();
        return true;
    }();
    static_cast<void>(buttonsAreFollowed);
    if (!GtkDialogPage::show(plugin)) return false;
    dialogSignals().connect<void>(controls(), "color-changed", [this] { dialogColorDidChange(); });
    dialogSignals().connect<void, GParamSpec*>(controls(), "notify::has-opacity-control",
                                               [this](GParamSpec*) { followOpacity(); });
    return true;
}

/// A window that is not a GtkDialog is answered by buttons of which nothing is known.
void GtkSelectionPage::followButtons()
{
    g_type_class_ref(GTK_TYPE_BUTTON);
    g_signal_add_emission_hook(
        g_signal_lookup("clicked", GTK_TYPE_BUTTON), 0,
        [](GSignalInvocationHint*, guint, const GValue* arguments, gpointer) {
            auto* button = GTK_WIDGET(g_value_get_object(arguments));
            if (!GTK_IS_DIALOG(gtk_widget_get_toplevel(button))) callFromC(answer, button, true);
            return static_cast<gboolean>(TRUE);
        },
        nullptr, nullptr);
}

GtkColorSelection* GtkSelectionPage::selection() const
{
    return GTK_COLOR_SELECTION(controls());
}

GdkRGBA GtkSelectionPage::dialogColor() const
{
    GdkRGBA color;
    gtk_color_selection_get_current_rgba(selection(), &color);
    return color;
}

bool GtkSelectionPage::hasOpacity() const
{
    return gtk_color_selection_get_has_opacity_control(selection()) != FALSE;
}

bool GtkSelectionPage::place(GtkWidget* widget)
{
    // The selection is a box, in which there is always room.
    return putBeside(widget, controls()) || putBelow(widget, controls());
}

void GtkSelectionPage::colorChosen(const HostColor& color, bool)
{
    if (controls() == nullptr) return;
    const GdkRGBA chosen = rgbaOf(color);
    // The first colour that a selection is given becomes its previous colour as well.
    GdkRGBA previous;
    gtk_color_selection_get_previous_rgba(selection(), &previous);
    gtk_color_selection_set_current_rgba(selection(), &chosen);
    if (controls() == nullptr) return;
    gtk_color_selection_set_previous_rgba(selection(), &previous);
}

}  // namespace vantorel
