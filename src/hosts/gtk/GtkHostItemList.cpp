#include "hosts/gtk/GtkHostItemList.h"

#include "hosts/common/PopUpChoice.h"
#include "hosts/common/PopUpList.h"
#include "hosts/common/TypeAhead.h"
#include "hosts/common/WheelSteps.h"
#include "hosts/gtk/CairoCanvas.h"
#include "hosts/gtk/GtkHostEvents.h"
#include "hosts/gtk/GtkReferences.h"
#include "hosts/gtk/GtkStyles.h"
#include "hosts/gtk/GtkTextScale.h"
#include "hosts/gtk/GtkTexts.h"
#include "hosts/gtk/GtkTranslations.h"

#include <gdk/gdkkeysyms.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

constexpr int frameWidth = 2;
constexpr int dragDistance = 8;
constexpr int besideText = 16;
constexpr int besideImage = 6;

std::size_t rowOf(int index)
{
    return static_cast<std::size_t>(index);
}

/// The window of a list. Destroyed with it.
class ItemList {
public:
    ItemList(GtkWidget* button, HostMenu items, int selected, GtkMenuChoice choose)
        : _button(button),
          _window(gtk_window_new(GTK_WINDOW_POPUP)),
          _items(std::move(items)),
          _selected(selected),
          _choose(std::move(choose))
    {
        g_object_set_data_full(G_OBJECT(_window), "vantorel-list", this,
                               [](gpointer data) { delete static_cast<ItemList*>(data); });
        g_object_ref_sink(_window);
        build();
        connect();
        // A list must not outlive what it is a part of.
        _signals.connect<void>(button, "unmap", [this] { close(); });
        // GTK 2 does not unmap what is taken out.
        _signals.connect<void>(button, "unrealize", [this] { close(); });
        _signals.connect<void>(button, "destroy", [this] { close(); });
    }

    /// Returns false, having destroyed this list, if there is nothing to choose or no way to do so.
    bool open()
    {
        GtkWidget* toplevel = gtk_widget_get_toplevel(_button);
        if (GTK_IS_WINDOW(toplevel)) {
            gtk_window_set_transient_for(GTK_WINDOW(_window), GTK_WINDOW(toplevel));
            if (GtkWindowGroup* group = gtk_window_get_group(GTK_WINDOW(toplevel))) {
                gtk_window_group_add_window(group, GTK_WINDOW(_window));
            }
        }
        gtk_window_set_type_hint(GTK_WINDOW(_window), GDK_WINDOW_TYPE_HINT_COMBO);
        place();
        gtk_widget_show(_window);
        gtk_grab_add(_window);
        if (!grabInput(gtk_widget_get_window(_window))) {
            close();
            return false;
        }
        _hasGrab = true;
        const int middle = std::max(_selected, 0) - _rowsOnShow / 2;
        gtk_adjustment_set_value(_scroll,
                                 std::clamp(middle, 0, std::max(0, count() - _rowsOnShow)));
        setCurrent(std::max(_selected, 0));
        return true;
    }

    [[nodiscard]] GtkWidget* window() const { return _window; }

private:
    [[nodiscard]] int count() const { return static_cast<int>(_items.size()); }

    [[nodiscard]] int firstRow() const
    {
        return static_cast<int>(gtk_adjustment_get_value(_scroll));
    }

    void build()
    {
        GtkWidget* frame = gtk_frame_new(nullptr);
        gtk_frame_set_shadow_type(GTK_FRAME(frame), GTK_SHADOW_OUT);
        GtkWidget* line = newBox(GTK_ORIENTATION_HORIZONTAL, 0);
        _area = gtk_drawing_area_new();
        gtk_widget_add_events(_area, GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK |
                                         GDK_POINTER_MOTION_MASK | GDK_SCROLL_MASK);
        const auto layout =
            GtkReference<PangoLayout>::adopt(gtk_widget_create_pango_layout(_area, "Xg"));
        int height = 0;
        pango_layout_get_pixel_size(layout.get(), nullptr, &height);
        _rowHeight = popUpRowHeight(height, gtkTextScale());
        for (const HostMenuItem& item : _items) {
            if (!item.image) continue;
            _imageWidth = static_cast<int>(std::ceil(sizeInPixels(*item.image).width));
            break;
        }
        _scroll = newAdjustment(0, count(), 1, 1);
        _bar = newScrollbar(_scroll);
        gtk_box_pack_start(GTK_BOX(line), _area, TRUE, TRUE, 0);
        gtk_box_pack_start(GTK_BOX(line), _bar, FALSE, FALSE, 0);
        gtk_container_add(GTK_CONTAINER(frame), line);
        gtk_container_add(GTK_CONTAINER(_window), frame);
        gtk_widget_show_all(frame);
        AtkObject* accessible = gtk_widget_get_accessible(_area);
        atk_object_set_role(accessible, ATK_ROLE_LIST);
        if (const char* name = atk_object_get_name(gtk_widget_get_accessible(_button))) {
            atk_object_set_name(accessible, name);
        }
    }

    void connect()
    {
        _signals.connectPaint(_area, [this](cairo_t* cairo) { paint(cairo); });
        _signals.connect<void>(_scroll, "value-changed", [this] { gtk_widget_queue_draw(_area); });
        _signals.connect<bool, GdkEventKey*>(_window, "key-press-event",
                                             [this](GdkEventKey* event) {
                                                 takeKey(*event);
                                                 return true;
                                             });
        _signals.connect<bool, GdkEventMotion*>(
            _area, "motion-notify-event", [this](GdkEventMotion* event) {
                _release.pointerMovedInside({event->x, event->y});
                const int row = rowAt(event->x, event->y);
                if (row >= 0 && canBeChosen(_items[rowOf(row)])) showCurrent(row);
                return true;
            });
        const auto press = [this](GdkEventButton* event) {
            GtkAllocation room;
            gtk_widget_get_allocation(_window, &room);
            double x = 0;
            double y = 0;
            int left = 0;
            int top = 0;
            gdk_event_get_root_coords(reinterpret_cast<GdkEvent*>(event), &x, &y);
            gdk_window_get_origin(gtk_widget_get_window(_window), &left, &top);
            const bool isInside =
                x >= left && x < left + room.width && y >= top && y < top + room.height;
            if (!isInside) close();
            _release.buttonWasPressed();
            return true;
        };
        _signals.connect<bool, GdkEventButton*>(_window, "button-press-event", press);
        _signals.connect<bool, GdkEventButton*>(
            _area, "button-release-event", [this](GdkEventButton* event) {
                if (_release.releaseChooses() && event->button == 1)
                    chooseRow(rowAt(event->x, event->y));
                return true;
            });
        _signals.connect<bool, GdkEventScroll*>(
            _area, "scroll-event", [this](GdkEventScroll* event) {
                constexpr int rowsPerStep = 3;
                scrollTo(firstRow() - rowsPerStep * _wheelSteps.stepsOf(turnOf(*event)));
                return true;
            });
        _signals.connect<bool, GdkEvent*>(_window, "grab-broken-event", [this](GdkEvent*) {
            close();
            return false;
        });
    }

    void place()
    {
        GdkWindow* parent = gtk_widget_get_window(_button);
        GtkAllocation button;
        gtk_widget_get_allocation(_button, &button);
        int left = 0;
        int top = 0;
        gdk_window_get_origin(parent, &left, &top);
        left += button.x;
        top += button.y;
        const GdkRectangle room = workAreaAt(parent, left, top);
        const PixelRect place =
            placeOfPopUpList({.button = {left, top, button.width, button.height},
                              .room = {room.x, room.y, room.width, room.height},
                              .rows = count(),
                              .rowHeight = _rowHeight,
                              .width = wantedWidth(),
                              .frames = frameWidth});
        _rowsOnShow = std::max(1, (place.height - frameWidth) / _rowHeight);
        gtk_adjustment_configure(_scroll, 0, 0, count(), 1, _rowsOnShow, _rowsOnShow);
        gtk_widget_set_visible(_bar, count() > _rowsOnShow);
        gtk_widget_set_size_request(_window, place.width, place.height);
        gtk_window_move(GTK_WINDOW(_window), place.x, place.y);
    }

    int wantedWidth()
    {
        int width = 0;
        for (const HostMenuItem* item : itemsToMeasure(_items)) {
            int titleWidth = 0;
            pango_layout_get_pixel_size(layoutOf(*item).get(), &titleWidth, nullptr);
            width = std::max(width, titleWidth);
            if (width >= widestPopUpList) break;
        }
        constexpr int scrollBarWidth = 16;
        return std::min(width + textLeft() + besideText + scrollBarWidth, widestPopUpList);
    }

    [[nodiscard]] int textLeft() const
    {
        return besideImage + (_imageWidth > 0 ? _imageWidth + besideImage : 0);
    }

    [[nodiscard]] GtkReference<PangoLayout> layoutOf(const HostMenuItem& item) const
    {
        const std::string title = gtkText(shownTitle(item).substr(0, widestPopUpList));
        return GtkReference<PangoLayout>::adopt(
            gtk_widget_create_pango_layout(_area, title.c_str()));
    }

    void paint(cairo_t* cairo)
    {
        GtkAllocation room;
        gtk_widget_get_allocation(_area, &room);
        const int first = firstRow();
        for (int i = first; i < count() && (i - first) * _rowHeight < room.height; ++i) {
            cairo_save(cairo);
            cairo_translate(cairo, 0, (i - first) * _rowHeight);
            paintRow(cairo, i, room.width);
            cairo_restore(cairo);
        }
    }

    void paintRow(cairo_t* cairo, int index, int width)
    {
        const HostMenuItem& item = _items[rowOf(index)];
        HostColor text = themeTextColor(_window);
        if (item.separator) {
            setCairoColor(cairo, text.colorWithAlphaComponent(0.3));
            cairo_rectangle(cairo, besideImage, std::floor(_rowHeight / 2.0),
                            width - 2 * besideImage, 1);
            cairo_fill(cairo);
            return;
        }
        if (index == _current) {
            setCairoColor(cairo, themeSelectionColor(_window));
            cairo_rectangle(cairo, 0, 0, width, _rowHeight);
            cairo_fill(cairo);
            text = HostColor::whiteColor();
        }
        if (item.image) {
            cairo_save(cairo);
            cairo_translate(cairo, besideImage,
                            std::floor((_rowHeight - sizeInPixels(*item.image).height) / 2));
            paintImage(cairo, *item.image, scaleFactorOf(_area));
            cairo_restore(cairo);
        }
        const auto layout = layoutOf(item);
        pango_layout_set_width(layout.get(), (width - textLeft() - besideImage) * PANGO_SCALE);
        pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
        if (index == _selected) {
            const PangoFont bold(pango_font_description_copy(
                pango_context_get_font_description(pango_layout_get_context(layout.get()))));
            pango_font_description_set_weight(bold.get(), PANGO_WEIGHT_BOLD);
            pango_layout_set_font_description(layout.get(), bold.get());
        }
        int height = 0;
        pango_layout_get_pixel_size(layout.get(), nullptr, &height);
        setCairoColor(cairo, text);
        cairo_move_to(cairo, textLeft(), std::floor((_rowHeight - height) / 2.0));
        pango_cairo_show_layout(cairo, layout.get());
    }

    [[nodiscard]] int rowAt(double x, double y) const
    {
        GtkAllocation room;
        gtk_widget_get_allocation(_area, &room);
        if (x < 0 || y < 0 || x >= room.width || y >= room.height) return -1;
        const int row = firstRow() + static_cast<int>(y) / _rowHeight;
        return row < count() ? row : -1;
    }

    void scrollTo(int first)
    {
        gtk_adjustment_set_value(_scroll, std::clamp(first, 0, std::max(0, count() - _rowsOnShow)));
    }

    /// Moves the mark to an item, and the list so that it is seen.
    void setCurrent(int index)
    {
        if (count() == 0) return;
        index = std::clamp(index, 0, count() - 1);
        const int first = firstRow();
        if (index < first) scrollTo(index);
        if (index >= first + _rowsOnShow) scrollTo(index - _rowsOnShow + 1);
        showCurrent(index);
    }

    void showCurrent(int index)
    {
        if (index == _current) return;
        _current = index;
        gtk_widget_queue_draw(_area);
        // What assistive technology reads while the user moves in the list.
        atk_object_set_description(gtk_widget_get_accessible(_area),
                                   gtkText(shownTitle(_items[rowOf(index)])).c_str());
    }

    /// Moves by rows, over separators.
    void moveBy(int rows)
    {
        const int direction = rows < 0 ? -1 : 1;
        int index = std::clamp(_current + rows, 0, std::max(0, count() - 1));
        while (index + direction >= 0 && index + direction < count() &&
               _items[rowOf(index)].separator)
            index += direction;
        if (index < count() && !_items[rowOf(index)].separator) setCurrent(index);
    }

    void takeKey(const GdkEventKey& event)
    {
        const auto key = hostKeyEventOf(event, false);
        const std::u16string typed = typedTextOf(event);
        if (event.keyval == GDK_KEY_Escape) {
            close();
        } else if (_typeAhead.takes(typed)) {
            const int found = _typeAhead.find(
                typed, _current, count(), [this](int index, const std::u16string& start) {
                    const HostMenuItem& item = _items[rowOf(index)];
                    return canBeChosen(item) && hasPrefix(shownTitle(item), start);
                });
            if (found >= 0) setCurrent(found);
        } else if (key) {
            moveByKey(key->key);
        }
    }

    void moveByKey(HostKey key)
    {
        switch (key) {
            case HostKey::up:
                moveBy(-1);
                break;
            case HostKey::down:
                moveBy(1);
                break;
            case HostKey::pageUp:
                moveBy(1 - _rowsOnShow);
                break;
            case HostKey::pageDown:
                moveBy(_rowsOnShow - 1);
                break;
            case HostKey::home:
                moveBy(-count());
                break;
            case HostKey::end:
                moveBy(count());
                break;
            case HostKey::pick:
                chooseRow(_current);
                break;
            case HostKey::left:
            case HostKey::right:
                break;
        }
    }

    void chooseRow(int index)
    {
        if (index < 0 || index >= count() || _items[rowOf(index)].separator || _isClosed) return;
        const HostMenuItem item = _items[rowOf(index)];
        const GtkMenuChoice choose = _choose;
        close();
        choose(item, index);
    }

    /// The list is destroyed when the event that is being handled is done.
    void close()
    {
        if (std::exchange(_isClosed, true)) return;
        if (std::exchange(_hasGrab, false)) ungrabInput(gtk_widget_get_window(_window));
        gtk_grab_remove(_window);
        gtk_widget_hide(_window);
        g_idle_add_full(
            G_PRIORITY_HIGH,
            [](gpointer window) {
                gtk_widget_destroy(static_cast<GtkWidget*>(window));
                g_object_unref(window);
                return static_cast<gboolean>(G_SOURCE_REMOVE);
            },
            _window, nullptr);
    }

    GtkWidget* _button;
    GtkWidget* _window;
    GtkWidget* _area = nullptr;
    GtkWidget* _bar = nullptr;
    GtkAdjustment* _scroll = nullptr;
    HostMenu _items;
    int _selected;
    GtkMenuChoice _choose;
    int _current = -1;
    int _rowHeight = 1;
    int _rowsOnShow = 1;
    int _imageWidth = 0;
    ReleaseRule _release{dragDistance};
    WheelSteps _wheelSteps;
    bool _hasGrab = false;
    bool _isClosed = false;
    TypeAhead _typeAhead;
    GtkConnections _signals;
};

}  // namespace

GtkWidget* openListBeside(GtkWidget* widget, const HostMenu& items, int selected,
                          const GtkMenuChoice& choose)
{
    auto* list = new ItemList(widget, items, selected, choose);
    GtkWidget* window = list->window();
    return list->open() ? window : nullptr;
}

}  // namespace vantorel
