#include "hosts/gtk-dialog/GtkDialogPage.h"

#include "hosts/gtk-dialog/GtkChooserPage.h"
#include "hosts/gtk-dialog/GtkDialogPlace.h"
#include "hosts/gtk-dialog/GtkSelectionPage.h"
#include "hosts/gtk/GtkTextScale.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace vantorel {
namespace {

constexpr const char* attachedKey = "vantorel-has-page";

/// The dialogs' own controls convert a colour to hue and value and back.
constexpr EmbeddingTraits traitsOfControls{1e-4};

template <class Page>
void putPageInto(GtkWidget* controls, const LoadedPlugin& plugin, GtkHostDesktop& desktop)
{
    if (g_object_get_data(G_OBJECT(controls), attachedKey) != nullptr) return;
    g_object_set_data(G_OBJECT(controls), attachedKey, GINT_TO_POINTER(TRUE));
    auto page = std::make_unique<Page>(controls, desktop);
    // It deletes itself later.
    if (page->show(plugin)) static_cast<void>(page.release());
}

void collectSelections(GtkWidget* widget, gpointer found)
{
    if (GTK_IS_COLOR_SELECTION(widget)) {
        static_cast<std::vector<GtkWidget*>*>(found)->push_back(widget);
    } else if (GTK_IS_CONTAINER(widget)) {
        gtk_container_forall(GTK_CONTAINER(widget), collectSelections, found);
    }
}

bool isInVisibleWindow(GtkWidget* widget)
{
    GtkWidget* window = gtk_widget_get_toplevel(widget);
    return GTK_IS_WINDOW(window) && gtk_widget_get_visible(window) != FALSE;
}

}  // namespace

void GtkDialogPage::putInto(GtkWidget* shown, const LoadedPlugin& plugin, GtkHostDesktop& desktop)
{
    if (GTK_IS_COLOR_CHOOSER_DIALOG(shown)) {
        putPageInto<GtkChooserPage>(shown, plugin, desktop);
    } else if (isInVisibleWindow(shown)) {
        std::vector<GtkWidget*> selections;
        collectSelections(shown, &selections);
        for (GtkWidget* selection : selections)
            putPageInto<GtkSelectionPage>(selection, plugin, desktop);
    }
}

GtkDialogPage::GtkDialogPage(GtkWidget* controls, GtkHostDesktop& desktop)
    : GtkEmbeddedPage(traitsOfControls, desktop), _controls(controls)
{
}

bool GtkDialogPage::show(const LoadedPlugin& plugin)
{
    const GdkRGBA color = dialogColor();
    if (!showPage(plugin, HostColor::colorWithCalibratedRed(color.red, color.green, color.blue,
                                                            color.alpha))) {
        return false;
    }
    followOpacity();
    endWith(_controls);
    return true;
}

bool GtkDialogPage::makeRoom(HostSize preferred, HostSize least)
{
    return place(holder().widget()) && GtkEmbeddedPage::makeRoom(preferred, least);
}

HostSize GtkDialogPage::spareRoom() const
{
    const auto [width, height] = spareRoomOf(gtk_widget_get_toplevel(_controls));
    return {width / gtkTextScale(), height / gtkTextScale()};
}

void GtkDialogPage::dialogColorDidChange()
{
    if (_controls == nullptr) return;
    const GdkRGBA color = dialogColor();
    page().dialogColorDidChange(
        HostColor::colorWithCalibratedRed(color.red, color.green, color.blue, color.alpha));
}

void GtkDialogPage::dialogIsAnswered(bool isAccepted)
{
    if (isAccepted) page().sendPendingColor();
}

GdkRGBA GtkDialogPage::rgbaOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    const auto fraction = [](double channel) { return channel > 0 ? std::min(channel, 1.0) : 0.0; };
    return {fraction(rgb.red), fraction(rgb.green), fraction(rgb.blue), fraction(rgb.alpha)};
}

}  // namespace vantorel
