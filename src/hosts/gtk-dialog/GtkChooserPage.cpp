#include "hosts/gtk-dialog/GtkChooserPage.h"

#include "hosts/gtk-dialog/GtkDialogPlace.h"

namespace vantorel {
namespace {

constexpr unsigned restInMilliseconds = 300;

}  // namespace

GtkChooserPage::GtkChooserPage(GtkWidget* dialog, GtkHostDesktop& desktop)
    : GtkDialogPage(dialog, desktop)
{
}

bool GtkChooserPage::show(const LoadedPlugin& plugin)
{
    if (!GtkDialogPage::show(plugin)) return false;
    dialogSignals().connect<void, GParamSpec*>(controls(), "notify::rgba",
                                               [this](GParamSpec*) { colorDidChange(); });
    dialogSignals().connect<void, GParamSpec*>(controls(), "notify::use-alpha",
                                               [this](GParamSpec*) { followOpacity(); });
    return true;
}

GtkColorChooser* GtkChooserPage::chooser() const
{
    return reinterpret_cast<GtkColorChooser*>(controls());
}

GdkRGBA GtkChooserPage::dialogColor() const
{
    GdkRGBA color;
    gtk_color_chooser_get_rgba(chooser(), &color);
    return color;
}

bool GtkChooserPage::hasOpacity() const
{
    return gtk_color_chooser_get_use_alpha(chooser()) != FALSE;
}

bool GtkChooserPage::place(GtkWidget* widget)
{
    GtkWidget* content = gtk_dialog_get_content_area(GTK_DIALOG(controls()));
    GtkWidget* own = chooserIn(content);
    // Beside the dialog's own controls, or below what a program has put in their place.
    return own != nullptr ? putBeside(widget, own) : putBelow(widget, content);
}

void GtkChooserPage::colorDidChange()
{
    // What happened last counts.
    _kept.reset();
    _rest.cancel();
    dialogColorDidChange();
}

void GtkChooserPage::colorChosen(const HostColor& color, bool isFinal)
{
    _kept = color;
    gboolean showsEditor = FALSE;
    g_object_get(controls(), "show-editor", &showsEditor, nullptr);
    if (showsEditor) {
        passOn();
    } else if (isFinal) {
        _rest.callAfter(restInMilliseconds, [this] { passOn(); });
    } else {
        _rest.cancel();
    }
}

void GtkChooserPage::passOn()
{
    _rest.cancel();
    if (controls() == nullptr || !_kept) return;
    const GdkRGBA color = rgbaOf(*_kept);
    _kept.reset();
    gtk_color_chooser_set_rgba(chooser(), &color);
}

void GtkChooserPage::dialogIsAnswered(bool isAccepted)
{
    GtkDialogPage::dialogIsAnswered(isAccepted);
    if (isAccepted) {
        passOn();
    } else {
        _kept.reset();
        _rest.cancel();
    }
}

void GtkChooserPage::dialogIsGone()
{
    GtkDialogPage::dialogIsGone();
    _rest.cancel();
}

}  // namespace vantorel
