#include "hosts/gtk-dialog/GtkDialogPage.h"

#include "hosts/gtk-dialog/GtkDialogPlace.h"
#include "hosts/gtk/GtkTextScale.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr const char* attachedKey = "vantorel-page";

/// The chooser's own controls convert a colour to hue and value and back.
constexpr EmbeddingTraits traitsOfChooser{1e-4};

constexpr unsigned restInMilliseconds = 300;

GdkRGBA rgbaOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    const auto fraction = [](double channel) { return channel > 0 ? std::min(channel, 1.0) : 0.0; };
    return {fraction(rgb.red), fraction(rgb.green), fraction(rgb.blue), fraction(rgb.alpha)};
}

}  // namespace

void GtkDialogPage::putInto(GtkWidget* dialog, const LoadedPlugin& plugin, GtkHostDesktop& desktop)
{
    if (!GTK_IS_COLOR_CHOOSER_DIALOG(dialog)) return;
    if (g_object_get_data(G_OBJECT(dialog), attachedKey) != nullptr) return;
    auto* page = new GtkDialogPage(GTK_DIALOG(dialog), desktop);
    g_object_set_data(G_OBJECT(dialog), attachedKey, page);
    if (!page->show(plugin)) delete page;
}

GtkDialogPage::GtkDialogPage(GtkDialog* dialog, GtkHostDesktop& desktop)
    : GtkEmbeddedPage(traitsOfChooser, desktop), _dialog(dialog)
{
}

GtkDialogPage::~GtkDialogPage() = default;

bool GtkDialogPage::show(const LoadedPlugin& plugin)
{
    if (!showPage(plugin, dialogColor())) return false;
    dialogSignals().connect<void, GParamSpec*>(_dialog, "notify::rgba",
                                               [this](GParamSpec*) { dialogColorDidChange(); });
    const auto followOpacity = [this] {
        page().setTakesOpacity(gtk_color_chooser_get_use_alpha(chooser()) != FALSE);
    };
    dialogSignals().connect<void, GParamSpec*>(_dialog, "notify::use-alpha",
                                               [followOpacity](GParamSpec*) { followOpacity(); });
    followOpacity();
    endWith(GTK_WIDGET(_dialog));
    return true;
}

bool GtkDialogPage::makeRoom(HostSize preferred, HostSize least)
{
    return putBesideControls(holder().widget(), _dialog) &&
           GtkEmbeddedPage::makeRoom(preferred, least);
}

HostSize GtkDialogPage::spareRoom() const
{
    const auto [width, height] = spareRoomOf(GTK_WIDGET(_dialog));
    return {width / gtkTextScale(), height / gtkTextScale()};
}

GtkColorChooser* GtkDialogPage::chooser() const
{
    return reinterpret_cast<GtkColorChooser*>(_dialog);
}

HostColor GtkDialogPage::dialogColor() const
{
    GdkRGBA color;
    gtk_color_chooser_get_rgba(chooser(), &color);
    return HostColor::colorWithCalibratedRed(color.red, color.green, color.blue, color.alpha);
}

void GtkDialogPage::dialogColorDidChange()
{
    if (_dialog == nullptr) return;
    // What happened last counts.
    _kept.reset();
    _rest.cancel();
    page().dialogColorDidChange(dialogColor());
}

void GtkDialogPage::colorChosen(const HostColor& color, bool isFinal)
{
    _kept = color;
    gboolean showsEditor = FALSE;
    g_object_get(_dialog, "show-editor", &showsEditor, nullptr);
    if (showsEditor) {
        passOn();
    } else if (isFinal) {
        _rest.callAfter(restInMilliseconds, [this] { passOn(); });
    } else {
        _rest.cancel();
    }
}

void GtkDialogPage::passOn()
{
    _rest.cancel();
    if (_dialog == nullptr || !_kept) return;
    const GdkRGBA color = rgbaOf(*_kept);
    _kept.reset();
    gtk_color_chooser_set_rgba(chooser(), &color);
}

void GtkDialogPage::dialogIsAnswered(bool isAccepted)
{
    if (isAccepted) {
        page().sendPendingColor();
        passOn();
    } else {
        _kept.reset();
        _rest.cancel();
    }
}

void GtkDialogPage::dialogIsGone()
{
    _dialog = nullptr;
    _rest.cancel();
}

}  // namespace vantorel
