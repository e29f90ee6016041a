#include "hosts/gtk/GtkHostPopUpButton.h"

#include "hosts/common/PopUpChoice.h"
#include "hosts/gtk/CairoCanvas.h"
#include "hosts/gtk/GtkHostEvents.h"
#include "hosts/gtk/GtkHostItemList.h"
#include "hosts/gtk/GtkHostMenu.h"
#include "hosts/gtk/GtkTexts.h"
#include "hosts/gtk/GtkTranslations.h"

#include <gdk/gdkkeysyms.h>

#include <cmath>

namespace vantorel {
namespace {

/// A menu makes several widgets for each item: 1,000 items take a fifth of a second.
constexpr int mostItemsOfMenu = 60;

}  // namespace

GtkHostPopUpButton::GtkHostPopUpButton(const HostControlDescription& description)
    : GtkMirrored(description.frame, gtk_button_new()),
      _style(widget(), description),
      _area(gtk_drawing_area_new()),
      _points(pointSizeOf(description))
{
    nameGtkWidget(widget(), description.identifier, description.accessibleName);
    atk_object_set_role(gtk_widget_get_accessible(widget()), ATK_ROLE_COMBO_BOX);
    GtkWidget* area = _area.get();
    gtk_widget_set_has_window(area, FALSE);
    gtk_container_add(GTK_CONTAINER(widget()), area);
    gtk_widget_show(area);
    signals().connectPaint(area, [this](cairo_t* cairo) { paint(cairo); });
    signals().connect<bool, GdkEventButton*>(
        widget(), "button-press-event", [this](GdkEventButton* event) {
            if (event->button != 1 || event->type != GDK_BUTTON_PRESS) return false;
            gtk_widget_grab_focus(widget());
            openMenu();
            return true;
        });
    signals().connect<bool, GdkEventKey*>(widget(), "key-press-event",
                                          [this](GdkEventKey* event) { return takeKey(*event); });
    // Sent by assistive technology, which presses no key.
    signals().connect<void>(widget(), "clicked", [this] { openMenu(); });
}

std::u16string GtkHostPopUpButton::selectedTitle() const
{
    const int selected = indexOfSelectedItem();
    return selected == noItem ? std::u16string()
                              : shownTitle(menu()[static_cast<std::size_t>(selected)]);
}

void GtkHostPopUpButton::paint(cairo_t* cairo)
{
    constexpr double beside = 4;
    constexpr double arrowRoom = 16;
    GtkAllocation place;
    gtk_widget_get_allocation(_area.get(), &place);
    const HostColor color = themeTextColor(widget());
    double left = beside;
    if (const int selected = indexOfSelectedItem(); selected != noItem) {
        if (const auto& image = menu()[static_cast<std::size_t>(selected)].image) {
            const HostSize size = sizeInPixels(*image);
            cairo_save(cairo);
            cairo_translate(cairo, left, std::floor((place.height - size.height) / 2));
            paintImage(cairo, *image, scaleFactorOf(_area.get()));
            cairo_restore(cairo);
            left += size.width + beside;
        }
    }
    drawPopUpArrow(cairo, color, place.width - arrowRoom / 2, std::round(place.height / 2.0));
    const double room = place.width - arrowRoom - left;
    if (room < 1 || !setCairoColor(cairo, color)) return;
    const auto layout = GtkReference<PangoLayout>::adopt(
        gtk_widget_create_pango_layout(_area.get(), gtkText(selectedTitle()).c_str()));
    pango_layout_set_font_description(layout.get(), gtkFontOfSize(_points).get());
    pango_layout_set_width(layout.get(), static_cast<int>(room * PANGO_SCALE));
    pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    int height = 0;
    pango_layout_get_pixel_size(layout.get(), nullptr, &height);
    cairo_move_to(cairo, left, std::floor((place.height - height) / 2.0));
    pango_cairo_show_layout(cairo, layout.get());
}

bool GtkHostPopUpButton::takeKey(const GdkEventKey& event)
{
    const std::u16string typed = typedTextOf(event);
    if (_typeAhead.takes(typed)) {
        const int found =
            _typeAhead.find(typed, indexOfSelectedItem(), numberOfItems(),
                            [this](int index, const std::u16string& start) {
                                const HostMenuItem& item = menu()[static_cast<std::size_t>(index)];
                                return canBeChosen(item) && hasPrefix(shownTitle(item), start);
                            });
        if (found >= 0) chooseItem(*this, found);
        return true;
    }
    const bool isDown = event.keyval == GDK_KEY_Down || event.keyval == GDK_KEY_KP_Down;
    const bool isUp = event.keyval == GDK_KEY_Up || event.keyval == GDK_KEY_KP_Up;
    const bool opens =
        isReturn(event.keyval) || typed == u" " || (isDown && (event.state & GDK_MOD1_MASK) != 0);
    if (opens) {
        openMenu();
    } else if (isDown || isUp) {
        chooseNeighbour(*this, isDown ? 1 : -1);
    }
    return opens || isDown || isUp;
}

void GtkHostPopUpButton::menuDidChange()
{
    GtkWidget* area = _area.get();
    if (area == nullptr || widget() == nullptr) return;
    gtk_widget_queue_draw(area);
    // The name says what is chosen here, the description what.
    const std::string title = gtkText(selectedTitle());
    if (title == _reportedTitle) return;
    _reportedTitle = title;
    atk_object_set_description(gtk_widget_get_accessible(widget()), title.c_str());
}

void GtkHostPopUpButton::openMenu()
{
    sendWillPopUp();
    if (widget() == nullptr || menu().empty()) return;
    const auto choose = [this, life = std::weak_ptr<const bool>(_life)](const HostMenuItem& item,
                                                                        int index) {
        if (!life.expired()) chooseOpenedItem(*this, item, index);
    };
    if (hasSubmenus(menu()) || numberOfItems() <= mostItemsOfMenu) {
        openMenuBelow(widget(), menu(), indexOfSelectedItem(), choose);
    } else {
        openListBeside(widget(), menu(), indexOfSelectedItem(), choose);
    }
}

}  // namespace vantorel
