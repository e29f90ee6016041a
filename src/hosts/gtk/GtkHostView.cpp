#include "hosts/gtk/GtkHostView.h"

#include "host/HostControls.h"
#include "hosts/gtk/GtkHostBox.h"
#include "hosts/gtk/GtkStyles.h"
#include "hosts/gtk/GtkTextScale.h"
#include "hosts/gtk/GtkTexts.h"
#include "hosts/gtk/GtkTranslations.h"

#include <atk/atk.h>

#include <cmath>
#include <optional>

namespace vantorel {
namespace {

int hidingCount = 0;

/// Marks the time in which a widget goes out of sight.
class Hiding {
public:
    Hiding() { ++hidingCount; }
    Hiding(const Hiding&) = delete;
    Hiding& operator=(const Hiding&) = delete;
    ~Hiding() { --hidingCount; }
};

}  // namespace

bool isHidingGtkWidget()
{
    return hidingCount > 0;
}

GtkPeer::GtkPeer(GtkWidget* widget) : _widget(GtkReference<GtkWidget>::sink(widget)), _alive(widget)
{
    // A program that shows all of its dialog must not show what a page hides.
    gtk_widget_set_no_show_all(widget, TRUE);
}

void GtkPeer::closeWidget()
{
    _signals.clear();
    const Hiding hiding;
    if (GtkWidget* widget = _alive.get()) gtk_widget_destroy(widget);
}

GtkWidget* gtkWidgetOf(const HostView* view)
{
    const auto* peer = dynamic_cast<const GtkPeer*>(view);
    return peer != nullptr ? peer->widget() : nullptr;
}

HostPoint corePoint(double x, double y, HostRect bounds)
{
    return viewPoint(PixelPoint{x, y}, bounds, gtkTextScale());
}

PixelRect pixelsAround(HostRect inView, HostRect bounds)
{
    const PixelPoint first = pixelPoint({inView.x, inView.maxY()}, bounds, gtkTextScale());
    const PixelPoint last = pixelPoint({inView.maxX(), inView.y}, bounds, gtkTextScale());
    const int left = static_cast<int>(std::floor(first.x));
    const int top = static_cast<int>(std::floor(first.y));
    return {left, top, static_cast<int>(std::ceil(last.x)) - left,
            static_cast<int>(std::ceil(last.y)) - top};
}

void placeGtkWidgets(const HostView& view)
{
    GtkWidget* widget = gtkWidgetOf(&view);
    if (widget != nullptr && view.superview() != nullptr) {
        placeInHostBox(widget,
                       pixelFrame(view.frame(), view.superview()->bounds(), gtkTextScale()));
        const bool isSeen =
            gtk_widget_get_parent(widget) != nullptr && isInSight(view, gtkTextScale());
        std::optional<Hiding> hiding;
        if (!isSeen) hiding.emplace();
        gtk_widget_set_visible(widget, isSeen);
    }
    // With y up, an unchanged frame moves in GTK's coordinates when the superview's height changes.
    for (const HostView* subview : view.subviews())
        placeGtkWidgets(*subview);
}

void adoptGtkWidget(HostView& view)
{
    auto* peer = dynamic_cast<GtkPeer*>(&view);
    GtkWidget* widget = peer != nullptr ? peer->widget() : nullptr;
    if (widget == nullptr) return;
    GtkWidget* oldParent = gtk_widget_get_parent(widget);
    GtkWidget* parent = gtkWidgetOf(view.superview());
    GtkWidget* inWindow = parent != nullptr ? parent : widget;
    GtkWidget* window = gtk_widget_get_toplevel(inWindow);
    GtkWidget* focused = GTK_IS_WINDOW(window) ? gtk_window_get_focus(GTK_WINDOW(window)) : nullptr;
    const bool hadFocus =
        focused != nullptr && (focused == widget ||
                               // NOLINTNEXTLINE(readability-suspicious-call-argument)
                               gtk_widget_is_ancestor(focused, widget));
    if (dynamic_cast<HostCustomView*>(view.superview()) != nullptr) styleForLightGround(widget);
    if (oldParent != parent) {
        if (oldParent != nullptr) {
            const Hiding hiding;
            gtk_container_remove(GTK_CONTAINER(oldParent), widget);
        }
        if (parent != nullptr) {
            gtk_widget_set_visible(widget, FALSE);
            gtk_container_add(GTK_CONTAINER(parent), widget);
        }
    }
    placeGtkWidgets(view);
    if (parent != nullptr) {
        peer->focusBefore = focused != nullptr ? GtkWeakWidget(focused) : GtkWeakWidget();
    } else if (GtkWidget* before = peer->focusBefore.get();
               hadFocus && before != nullptr && gtk_widget_get_mapped(before)) {
        gtk_widget_grab_focus(before);
    }
}

void showToolTip(GtkWidget* widget, const std::optional<std::u16string>& text)
{
    const std::string shown = text ? gtkText(translatedText(*text)) : std::string();
    const bool isBlank = shown.find_first_not_of(" \t\n") == std::string::npos;
    gtk_widget_set_tooltip_text(widget, isBlank ? nullptr : shown.c_str());
}

void nameGtkWidget(GtkWidget* widget, const std::string& identifier,
                   const std::u16string& accessibleName)
{
    gtk_widget_set_name(widget, identifier.c_str());
    if (!accessibleName.empty()) speakGtkWidget(widget, accessibleName);
}

void speakGtkWidget(GtkWidget* widget, const std::u16string& name)
{
    atk_object_set_name(gtk_widget_get_accessible(widget), gtkText(name).c_str());
}

}  // namespace vantorel
