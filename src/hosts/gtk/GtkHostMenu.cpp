#include "hosts/gtk/GtkHostMenu.h"

#include "hosts/common/TypeAhead.h"
#include "hosts/gtk/CairoCanvas.h"
#include "hosts/gtk/GtkHostEvents.h"
#include "hosts/gtk/GtkReferences.h"
#include "hosts/gtk/GtkTextScale.h"
#include "hosts/gtk/GtkTexts.h"
#include "hosts/gtk/GtkTranslations.h"

#include <cmath>
#include <utility>
#include <vector>

namespace vantorel {
namespace {

constexpr const char* menuKey = "vantorel-menu";

/// A menu and the connections of its items; destroyed with the menu's widget.
class OpenMenu {
public:
    /// `widget` owns the menu that this is.
    OpenMenu(GtkWidget* menu, GtkWidget* shownIn) : _menu(menu), _shownIn(shownIn)
    {
        g_object_set_data_full(G_OBJECT(menu), menuKey, this,
                               [](gpointer data) { delete static_cast<OpenMenu*>(data); });
        _signals.connect<bool, GdkEventKey*>(menu, "key-press-event",
                                             [this](GdkEventKey* event) { return search(*event); });
    }

    void fill(const HostMenu& items, int selected, const GtkMenuChoice& choose)
    {
        for (std::size_t i = 0; i < items.size(); ++i) {
            const int index = static_cast<int>(i);
            GtkWidget* row = newRow(items[i], index == selected);
            gtk_menu_shell_append(GTK_MENU_SHELL(_menu), row);
            gtk_widget_show_all(row);
            _rows.push_back({row, items[i].separator ? std::u16string() : shownTitle(items[i])});
            if (items[i].submenu) {
                addSubmenu(row, items[i].submenu);
            } else if (!items[i].separator) {
                _signals.connect<void>(row, "activate",
                                       [item = items[i], index, choose] { choose(item, index); });
            }
        }
    }

    /// Call it once the menu is open.
    void moveTo(int index)
    {
        if (index < 0 || index >= static_cast<int>(_rows.size())) return;
        gtk_menu_shell_select_item(GTK_MENU_SHELL(_menu),
                                   _rows[static_cast<std::size_t>(index)].widget);
    }

    /// Destroys the menu when it has closed, or when its button goes.
    void followButton()
    {
        // The chosen item is activated only after the menu has closed.
        _signals.connect<void>(_menu, "selection-done", [this] {
            _end.callSoon([menu = GtkWeakWidget(_menu)] { destroyMenu(menu.get()); });
        });
        // At once, because GTK 2 asks the button when a menu is destroyed.
        const auto close = [this, menu = _menu] {
            if (std::exchange(_isClosed, true)) return;
            gtk_menu_popdown(GTK_MENU(menu));
            gtk_widget_destroy(menu);
        };
        _signals.connect<void>(_shownIn, "unmap", close);
        // GTK 2 does not unmap what is taken out.
        _signals.connect<void>(_shownIn, "unrealize", close);
        _signals.connect<void>(_shownIn, "destroy", close);
    }

private:
    static void destroyMenu(GtkWidget* menu)
    {
        if (menu != nullptr) gtk_widget_destroy(menu);
    }

    struct Row {
        GtkWidget* widget;
        std::u16string title;
    };

    GtkWidget* newRow(const HostMenuItem& item, bool isSelected)
    {
        if (item.separator) return gtk_separator_menu_item_new();
        GtkWidget* row = isSelected ? gtk_check_menu_item_new() : gtk_menu_item_new();
        if (isSelected) {
            gtk_check_menu_item_set_draw_as_radio(GTK_CHECK_MENU_ITEM(row), TRUE);
            gtk_check_menu_item_set_active(GTK_CHECK_MENU_ITEM(row), TRUE);
        }
        GtkWidget* label = gtk_label_new(gtkText(shownTitle(item)).c_str());
        gtk_misc_set_alignment(reinterpret_cast<GtkMisc*>(label), 0, 0.5F);
        if (!item.image) {
            gtk_container_add(GTK_CONTAINER(row), label);
            return row;
        }
        constexpr int besidePicture = 6;
        GtkWidget* line = newBox(GTK_ORIENTATION_HORIZONTAL, besidePicture);
        GtkWidget* picture = gtk_drawing_area_new();
        gtk_widget_set_has_window(picture, FALSE);
        const HostSize size = sizeInPixels(*item.image);
        gtk_widget_set_size_request(picture, static_cast<int>(std::ceil(size.width)),
                                    static_cast<int>(std::ceil(size.height)));
        _signals.connectPaint(picture, [picture, image = *item.image](cairo_t* cairo) {
            GtkAllocation place;
            gtk_widget_get_allocation(picture, &place);
            cairo_translate(cairo, 0, std::floor((place.height - sizeInPixels(image).height) / 2));
            paintImage(cairo, image, scaleFactorOf(picture));
        });
        gtk_box_pack_start(GTK_BOX(line), picture, FALSE, FALSE, 0);
        gtk_box_pack_start(GTK_BOX(line), label, TRUE, TRUE, 0);
        gtk_container_add(GTK_CONTAINER(row), line);
        return row;
    }

    void addSubmenu(GtkWidget* row, const std::function<HostMenu()>& make)
    {
        GtkWidget* submenu = gtk_menu_new();
        gtk_menu_item_set_submenu(GTK_MENU_ITEM(row), submenu);
        auto* opened = new OpenMenu(submenu, _shownIn);
        // An item is selected before its submenu opens, by mouse and by keys.
        _signals.connect<void>(row, "select", [opened, make] { opened->refill(make()); });
    }

    void refill(const HostMenu& items)
    {
        if (gtk_widget_get_mapped(_menu)) return;
        for (const Row& row : std::exchange(_rows, {}))
            gtk_widget_destroy(row.widget);
        fill(items, -1, [](const HostMenuItem& chosen, int) {
            if (chosen.action) chosen.action(chosen);
        });
        if (!items.empty()) return;
        // An empty menu would not open, without any explanation.
        GtkWidget* row = gtk_menu_item_new_with_label(gtkText(translatedText(u"None")).c_str());
        gtk_widget_set_sensitive(row, FALSE);
        gtk_menu_shell_append(GTK_MENU_SHELL(_menu), row);
        gtk_widget_show(row);
        _rows.push_back({row, {}});
    }

    bool search(const GdkEventKey& event)
    {
        const std::u16string typed = typedTextOf(event);
        if (!_typeAhead.takes(typed)) return false;
        int current = -1;
        GtkWidget* const active = selectedItemOf(_menu);
        for (std::size_t i = 0; i < _rows.size(); ++i)
            if (_rows[i].widget == active) current = static_cast<int>(i);
        const int found = _typeAhead.find(
            typed, current, static_cast<int>(_rows.size()),
            [this](int index, const std::u16string& start) {
                return hasPrefix(_rows[static_cast<std::size_t>(index)].title, start);
            });
        moveTo(found);
        return true;
    }

    GtkWidget* _menu;
    GtkWidget* _shownIn;
    std::vector<Row> _rows;
    TypeAhead _typeAhead;
    GtkConnections _signals;
    GtkDeferral _end;
    bool _isClosed = false;
};

#if GTK_MAJOR_VERSION >= 3
/// The event that opens a menu; GTK complains if there is none. Assistive technology sends none.
GdkEventCopy causeOfMenu(GtkWidget* widget)
{
    GdkEventCopy event(gtk_get_current_event());
    if (event) return event;
    event.reset(gdk_event_new(GDK_BUTTON_PRESS));
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(widget)));
    event->button.button = 1;
    GdkSeat* seat = gdk_display_get_default_seat(gtk_widget_get_display(widget));
    gdk_event_set_device(event.get(), gdk_seat_get_pointer(seat));
    return event;
}
#else
void placeBelow(GtkMenu* menu, gint* x, gint* y, gboolean* pushIn, gpointer data)
{
    auto* widget = static_cast<GtkWidget*>(data);
    GtkAllocation place;
    gtk_widget_get_allocation(widget, &place);
    gdk_window_get_origin(gtk_widget_get_window(widget), x, y);
    *x += place.x;
    *y += place.y + place.height;
    *pushIn = TRUE;
    static_cast<void>(menu);
}
#endif

}  // namespace

void openMenuBelow(GtkWidget* widget, const HostMenu& items, int selected,
                   const GtkMenuChoice& choose)
{
    GtkWidget* menu = gtk_menu_new();
    gtk_menu_attach_to_widget(GTK_MENU(menu), widget, nullptr);
    auto* opened = new OpenMenu(menu, widget);
    GtkAllocation place;
    gtk_widget_get_allocation(widget, &place);
    gtk_widget_set_size_request(menu, place.width, -1);
    opened->fill(items, selected, choose);
    opened->followButton();
#if GTK_MAJOR_VERSION >= 3
    const GdkEventCopy cause = causeOfMenu(widget);
    gtk_menu_popup_at_widget(GTK_MENU(menu), widget, GDK_GRAVITY_SOUTH_WEST, GDK_GRAVITY_NORTH_WEST,
                             cause.get());
#else
    gtk_menu_popup(GTK_MENU(menu), nullptr, nullptr, placeBelow, widget, 0,
                   gtk_get_current_event_time());
#endif
    opened->moveTo(selected);
}

}  // namespace vantorel
