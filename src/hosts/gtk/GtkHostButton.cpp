#include "hosts/gtk/GtkHostButton.h"

#include "hosts/gtk/GtkTextScale.h"
#include "hosts/gtk/GtkTexts.h"

#include <cmath>
#include <utility>

namespace vantorel {
namespace {

using ButtonKind = HostControlDescription::ButtonKind;

/// Underscores in a title are part of it.
GtkWidget* newButton(const HostControlDescription& description)
{
    const std::string title = gtkText(description.title);
    GtkWidget* button = nullptr;
    switch (description.buttonKind) {
        case ButtonKind::checkBox:
            return gtk_check_button_new_with_label(title.c_str());
        case ButtonKind::toggle:
            button = description.svgImage.empty() ? gtk_toggle_button_new_with_label(title.c_str())
                                                  : gtk_toggle_button_new();
            break;
        case ButtonKind::push:
            button = description.svgImage.empty() ? gtk_button_new_with_label(title.c_str())
                                                  : gtk_button_new();
            break;
    }
    if (!description.svgImage.empty()) gtk_button_set_relief(GTK_BUTTON(button), GTK_RELIEF_NONE);
    return button;
}

}  // namespace

GtkHostButton::GtkHostButton(const HostControlDescription& description)
    : GtkMirrored(description.frame, newButton(description)),
      _picture(description.svgImage),
      _style(widget(), description)
{
    nameGtkWidget(widget(), description.identifier, description.accessibleName);
    if (!_picture.isEmpty()) addPicture(description);
    if (GTK_IS_TOGGLE_BUTTON(widget())) {
        signals().connect<void>(widget(), "toggled", [this] { wasToggled(); });
    } else {
        signals().connect<void>(widget(), "clicked", [this] { sendAction(); });
    }
}

void GtkHostButton::addPicture(const HostControlDescription& description)
{
    GtkWidget* area = gtk_drawing_area_new();
    gtk_widget_set_has_window(area, FALSE);
    gtk_container_add(GTK_CONTAINER(widget()), area);
    gtk_widget_show(area);
    signals().connectPaint(area, [this, area](cairo_t* cairo) { paintPicture(cairo, area); });
    // The button's own name, if there is one, says more than that it has a picture.
    if (description.accessibleName.empty()) return;
    atk_object_set_name(gtk_widget_get_accessible(area),
                        gtkText(description.accessibleName).c_str());
}

void GtkHostButton::paintPicture(cairo_t* cairo, GtkWidget* area)
{
    constexpr double pictureLength = 14;
    const double size = pictureLength * gtkTextScale();
    GtkAllocation place;
    gtk_widget_get_allocation(area, &place);
    const double left = std::round((place.width - size) / 2);
    const double top = std::round((place.height - size) / 2);
    const HostColor color = themeTextColor(widget());
    cairo_save(cairo);
    cairo_translate(cairo, left, top);
    if (!_picture.paint(cairo, size, scaleFactorOf(area), color) && setCairoColor(cairo, color)) {
        // A desktop without a loader for the picture: the button is at least seen to be one.
        cairo_arc(cairo, size / 2, size / 2, size / 5, 0, 2 * G_PI);
        cairo_fill(cairo);
    }
    cairo_restore(cairo);
}

void GtkHostButton::wasToggled()
{
    if (_stateIsBeingShown) return;
    setState(gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(widget())) ? 1 : 0);
    const GtkWeakWidget alive(widget());
    sendAction();
    // The action may have set another state, or destroyed the button.
    if (alive.get() != nullptr) stateDidChange();
}

void GtkHostButton::stateDidChange()
{
    if (widget() == nullptr || !GTK_IS_TOGGLE_BUTTON(widget())) return;
    const bool wasBeingShown = std::exchange(_stateIsBeingShown, true);
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(widget()), state() == 1);
    _stateIsBeingShown = wasBeingShown;
}

}  // namespace vantorel
