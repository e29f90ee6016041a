#include "hosts/gimp/SelectorPage.h"

#include "hosts/gimp/SelectorNames.h"
#include "hosts/gtk/GtkStyles.h"
#include "hosts/gtk/SvgPicture.h"

namespace vantorel {
namespace {

/// GIMP may store colours in 16 bits a channel, or in floats.
constexpr EmbeddingTraits traitsOfSelector{1e-5};

constexpr int iconSize = 16;

}  // namespace

void SelectorPage::putInto(GimpColorSelector* selector, const LoadedPlugin& plugin,
                           GtkHostDesktop& desktop)
{
    auto* page = new SelectorPage(selector, desktop);
    if (!page->show(plugin)) delete page;
}

SelectorPage::SelectorPage(GimpColorSelector* selector, GtkHostDesktop& desktop)
    : GtkEmbeddedPage(traitsOfSelector, desktop), _selector(selector)
{
}

SelectorPage::~SelectorPage() = default;

bool SelectorPage::show(const LoadedPlugin& plugin)
{
    if (!showPage(plugin, colorOfSelector(_selector))) return false;
    GtkWidget* held = holder().widget();
    gtk_box_pack_start(GTK_BOX(_selector), held, TRUE, TRUE, 0);
    gtk_widget_show(held);
    endWith(GTK_WIDGET(_selector));
    followColorOfSelector(dialogSignals(), _selector,
                          [this] { page().dialogColorDidChange(colorOfSelector(_selector)); });
    // GIMP shows a selector when its tab is chosen.
    page().dialogDidDisappear();
    for (const char* signal : {"map", "unmap"})
        dialogSignals().connect<void>(held, signal, [this] { visibilityDidChange(); });
    dialogSignals().connect<void, GtkWidget*>(held, "hierarchy-changed",
                                              [this](GtkWidget*) { followWindow(); });
    addIcon();
    g_object_set_data(G_OBJECT(_selector), selectorPageKey, this);
    return true;
}

bool SelectorPage::makeRoom(HostSize preferred, HostSize least)
{
    _preferredSize = preferred;
    _leastSize = least;
    return GtkEmbeddedPage::makeRoom(preferred, least);
}

HostSize SelectorPage::growHolder(HostSize growth)
{
    // The user alone decides how wide a dock is.
    return isInDialog() ? GtkEmbeddedPage::growHolder(growth) : HostSize{};
}

bool SelectorPage::isInDialog() const
{
    return GTK_IS_DIALOG(gtk_widget_get_toplevel(holder().widget()));
}

void SelectorPage::followWindow()
{
    _windowSignals.clear();
    GtkWidget* window = gtk_widget_get_toplevel(holder().widget());
    if (!GTK_IS_WINDOW(window)) return;
    // GIMP gives a selector the least size that it asks for, and docks are narrow.
    holder().setLeastSize(isInDialog() ? _preferredSize : _leastSize);
    // GTK 2 does not unmap what is in a window that is hidden.
    for (const char* signal : {"map", "unmap"})
        _windowSignals.connect<void>(window, signal, [this] { visibilityDidChange(); });
    visibilityDidChange();
}

void SelectorPage::visibilityDidChange()
{
    GtkWidget* held = holder().widget();
    if (gtk_widget_get_mapped(held) && gtk_widget_get_mapped(gtk_widget_get_toplevel(held))) {
        followOpacity();
        page().dialogDidAppear();
    } else {
        page().dialogDidDisappear();
    }
}

/// Has no signal. GIMP decides it before it shows the selector.
void SelectorPage::followOpacity()
{
    page().setTakesOpacity(gimp_color_selector_get_show_alpha(_selector) != FALSE);
}

void SelectorPage::addIcon()
{
    static bool isAdded = false;
    if (std::exchange(isAdded, true)) return;
    const auto picture = pictureOfSvg(page().picker()->buttonImage(), iconSize,
                                      themeTextColor(GTK_WIDGET(_selector)));
    if (picture) gtk_icon_theme_add_builtin_icon(selectorIconName, iconSize, picture.get());
}

void SelectorPage::colorChosen(const HostColor& color, bool)
{
    // The end of a drag is not one more change.
    if (_selector != nullptr && color != colorOfSelector(_selector)) {
        setColorOfSelector(_selector, color);
    }
}

void SelectorPage::dialogIsAnswered(bool)
{
    // GIMP takes it back if the user refuses.
    page().sendPendingColor();
}

void SelectorPage::dialogIsGone()
{
    _windowSignals.clear();
    _selector = nullptr;
}

void SelectorPage::pageDidFail()
{
    if (_selector != nullptr) {
        // Without its tab, GIMP's dialog is as it would be without us.
        gtk_widget_hide(GTK_WIDGET(_selector));
        g_object_set_data(G_OBJECT(_selector), selectorPageKey, nullptr);
    }
    GtkEmbeddedPage::pageDidFail();
}

}  // namespace vantorel
