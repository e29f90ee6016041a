#include "hosts/gtk-dialog/GtkDialogPage.h"

#include "hosts/gtk-dialog/GtkDialogPlace.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr const char* attachedKey = "vantorel-page";

/// The chooser's own controls convert a colour to hue and value and back.
constexpr EmbeddingTraits traitsOfChooser{1e-4};

constexpr unsigned restInMilliseconds = 300;

bool isRefusal(int response)
{
    switch (response) {
        case GTK_RESPONSE_CANCEL:
        case GTK_RESPONSE_CLOSE:
        case GTK_RESPONSE_DELETE_EVENT:
        case GTK_RESPONSE_HELP:
        case GTK_RESPONSE_NO:
        case GTK_RESPONSE_REJECT:
            return true;
        default:
            return false;
    }
}

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
    if (!putBesideControls(holder().widget(), _dialog)) return false;
    dialogSignals().connect<void, GParamSpec*>(_dialog, "notify::rgba",
                                               [this](GParamSpec*) { dialogColorDidChange(); });
    const auto followOpacity = [this] {
        page().setTakesOpacity(gtk_color_chooser_get_use_alpha(chooser()) != FALSE);
    };
    dialogSignals().connect<void, GParamSpec*>(_dialog, "notify::use-alpha",
                                               [followOpacity](GParamSpec*) { followOpacity(); });
    followOpacity();
    endWith(GTK_WIDGET(_dialog));
    followAnswers();
    return true;
}

/// A program reads the colour in its own reaction to the answer, which was connected before ours.
/// Only an emission hook comes earlier.
void GtkDialogPage::followAnswers()
{
    static const gulong hook = g_signal_add_emission_hook(
        g_signal_lookup("response", GTK_TYPE_DIALOG), 0,
        [](GSignalInvocationHint*, guint, const GValue* arguments, gpointer) {
            auto* dialog = g_value_get_object(arguments);
            auto* page =
                static_cast<GtkDialogPage*>(g_object_get_data(G_OBJECT(dialog), attachedKey));
            if (isShown(page)) page->dialogIsAnswered(g_value_get_int(arguments + 1));
            return static_cast<gboolean>(TRUE);
        },
        nullptr, nullptr);
    static_cast<void>(hook);
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

void GtkDialogPage::dialogIsAnswered(int response)
{
    // A program may end with its dialog, which it could not while it is in the page's own loop.
    page().guarded([this] { panel().endPress(); });
    if (isRefusal(response)) {
        _kept.reset();
        _rest.cancel();
        return;
    }
    page().guarded([this] { panel().finishEditing(); });
    page().sendPendingColor();
    passOn();
}

void GtkDialogPage::dialogIsGone()
{
    _dialog = nullptr;
    _rest.cancel();
}

}  // namespace vantorel
