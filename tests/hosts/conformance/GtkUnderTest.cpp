#include "HostUnderTest.h"

#include "GtkDragData.h"
#include "GtkHand.h"
#include "GtkMenuHand.h"
#include "hosts/gtk/GtkHostBox.h"
#include "hosts/gtk/GtkHostColorPanel.h"
#include "hosts/gtk/GtkHostTextField.h"
#include "hosts/gtk/GtkTexts.h"

#include <gdk/gdkkeysyms.h>

#include <cstdlib>
#include <utility>

namespace vantorel {
namespace {

class GtkToolkitPanel : public GtkHostColorPanel {
public:
    GtkToolkitPanel(GtkHostDesktop& desktop, HostView& root)
        : GtkHostColorPanel(desktop), _root(root)
    {
    }
    using GtkHostColorPanel::finishEditing;
    using GtkHostColorPanel::pageDidAppear;

protected:
    [[nodiscard]] HostView* pageView() const override { return &_root; }
    bool takeText(const std::u16string&) override { return false; }

private:
    HostView& _root;
};

guint stateOf(std::uint64_t modifierFlags)
{
    guint state = 0;
    if ((modifierFlags & shiftModifierFlag) != 0) state |= GDK_SHIFT_MASK;
    if ((modifierFlags & controlModifierFlag) != 0) state |= GDK_CONTROL_MASK;
    if ((modifierFlags & alternateModifierFlag) != 0) state |= GDK_MOD1_MASK;
    return state;
}

guint keyOf(HandKey key)
{
    switch (key) {
        case HandKey::enter:
            return GDK_KEY_Return;
        case HandKey::escape:
            return GDK_KEY_Escape;
        case HandKey::backspace:
            return GDK_KEY_BackSpace;
        case HandKey::up:
            return GDK_KEY_Up;
        case HandKey::down:
            return GDK_KEY_Down;
        case HandKey::left:
            return GDK_KEY_Left;
        case HandKey::space:
            return GDK_KEY_space;
        case HandKey::tab:
            break;
    }
    return GDK_KEY_Tab;
}

class GtkUnderTest final : public HostUnderTest {
public:
    GtkUnderTest() : _window(gtk_window_new(GTK_WINDOW_TOPLEVEL))
    {
        gtk_container_add(GTK_CONTAINER(_window.get()), _root.widget());
        gtk_widget_show(_root.widget());
        resizeWindow({300, 200});
    }
    GtkUnderTest(const GtkUnderTest&) = delete;
    GtkUnderTest& operator=(const GtkUnderTest&) = delete;
    ~GtkUnderTest() override
    {
        // A pointer over the window of the next test would be reported there.
        if (_hasMovedPointer) warpPointer(pointerElsewhere, pointerElsewhere);
        _panel.page().close();
        destroyWindow();
    }

    HostDesktop& desktop() override { return _desktop; }
    HostColorPanel& panel() override { return _panel; }
    EmbeddedPage& page() override { return _panel.page(); }
    bool showPage(const LoadedPlugin& plugin) override
    {
        if (!_panel.showPage(plugin, _root, HostColor::blackColor())) return false;
        _panel.pageDidAppear();
        return true;
    }

    HostView& root() override { return _root; }
    void showWindow() override
    {
        gtk_widget_show(_window.get());
        static_cast<void>(
            runUntil([this] { return gtk_widget_get_mapped(_root.widget()) != FALSE; }));
        // There is no window manager that would do it.
        gdk_window_focus(gtk_widget_get_window(_window.get()), GDK_CURRENT_TIME);
        static_cast<void>(runUntil(
            [this] { return gtk_window_has_toplevel_focus(GTK_WINDOW(_window.get())) != FALSE; }));
        handleEvents();
    }
    void resizeWindow(HostSize size) override
    {
        const int width = static_cast<int>(size.width);
        const int height = static_cast<int>(size.height);
        _root.setFrame({0, 0, size.width, size.height});
        gtk_widget_set_size_request(_root.widget(), width, height);
        gtk_window_resize(GTK_WINDOW(_window.get()), width, height);
        _panel.page().resize();
    }
    void destroyWindow() override
    {
        if (GtkWidget* window = _window.get()) gtk_widget_destroy(window);
        handleEvents();
    }
    void handleEvents() override { handleGtkEvents(); }
    bool runUntil(const std::function<bool()>& hasHappened) override
    {
        return runGtkUntil(hasHappened);
    }

    void clickInto(HostTextField& field) override
    {
        gtk_widget_grab_focus(gtkWidgetOf(&field));
        // The focus has selected all; a click does not.
        gtk_editable_set_position(GTK_EDITABLE(gtkWidgetOf(&field)), -1);
        handleEvents();
    }
    void type(HostTextField& field, const std::u16string& text) override
    {
        const GtkWeakWidget entry(gtkWidgetOf(&field));
        const std::string bytes = gtkText(text);
        for (const char* at = bytes.c_str(); *at != '\0'; at = g_utf8_next_char(at)) {
            if (entry.get() == nullptr) return;
            sendKey(entry.get(), gdk_unicode_to_keyval(g_utf8_get_char(at)));
            handleEvents();
        }
    }
    bool pressKey(HostView& control, HandKey key, std::uint64_t modifierFlags) override
    {
        auto* peer = dynamic_cast<GtkPeer*>(&control);
        bool isUsed = true;
        if (auto* popUp = dynamic_cast<HostPopUpButton*>(&control)) willOpen(*popUp);
        if (key == HandKey::tab) {
            gtk_widget_child_focus(_window.get(), GTK_DIR_TAB_FORWARD);
        } else {
            isUsed = sendKey(peer->activeWidget(), keyOf(key), stateOf(modifierFlags));
        }
        handleEvents();
        return isUsed;
    }
    void clickAcross(HostTextField& field, const std::vector<HostEvent>& events) override
    {
        const GtkWeakWidget entry(gtkWidgetOf(&field));
        const HostRect bounds = field.bounds();
        for (const HostEvent& event : events) {
            if (entry.get() != nullptr) sendTurn(entry.get(), bounds, event);
            handleEvents();
        }
    }
    void click(HostButton& button) override
    {
        gtk_button_clicked(GTK_BUTTON(gtkWidgetOf(&button)));
        handleEvents();
    }
    void open(HostPopUpButton& popUp) override
    {
        willOpen(popUp);
        const GdkEventCopy event = newGtkEvent(_opened.get(), GDK_BUTTON_PRESS);
        event->button.button = 1;
        gtk_widget_event(_opened.get(), event.get());
        handleEvents();
        _listed = popUp.menu();
    }
    bool choose(const std::vector<std::u16string>& path) override
    {
        const bool isChosen = openedList() != nullptr ? chooseInList(_listed, path)
                              : hasOpenMenu()         ? chooseInMenu(_opened.get(), path)
                                                      : false;
        handleEvents();
        return isChosen;
    }
    bool hasOpenMenu() override
    {
        if (openedList() != nullptr) return true;
        GtkWidget* menu = _opened.get() != nullptr ? openedMenu(_opened.get()) : nullptr;
        return menu != nullptr && gtk_widget_get_mapped(menu);
    }

    void turnMouse(HostCustomView& view, std::vector<HandStep> steps) override
    {
        auto& custom = static_cast<GtkHostCustomView&>(view);
        const GtkWeakWidget area(custom.activeWidget());
        GtkConnections drags;
        drags.connect<void, GdkDragContext*>(area.get(), "drag-begin",
                                             [&](GdkDragContext* context) { _drag = context; });
        // Without it the picture would take its time to fly back.
        drags.connect<bool, GdkDragContext*, int>(area.get(), "drag-failed",
                                                  [](GdkDragContext*, int) { return true; });
        takeSteps(std::move(steps), [&](const HandStep& step) {
            if (const auto* function = std::get_if<std::function<void()>>(&step)) {
                (*function)();
            } else if (_drag != nullptr) {
                drop(area.get(), std::get<HostEvent>(step));
            } else if (area.get() != nullptr && gtk_widget_get_mapped(area.get())) {
                sendTurn(custom.activeWidget(), custom.bounds(), std::get<HostEvent>(step));
            }
        });
        handleEvents();
    }
    void movePointer(HostCustomView& view, std::optional<HostPoint> at) override
    {
        auto& custom = static_cast<GtkHostCustomView&>(view);
        if (at) {
            sendMouse(custom, GDK_MOTION_NOTIFY, *at);
        } else {
            const GdkEventCopy event = newGtkEvent(custom.activeWidget(), GDK_LEAVE_NOTIFY);
            gtk_widget_event(custom.activeWidget(), event.get());
        }
    }
    void turnWheel(HostCustomView& view, const HostScrollEvent& turn) override
    {
        GtkWidget* area = static_cast<GtkHostCustomView&>(view).activeWidget();
        const PixelPoint place = pixelPoint(turn.location, view.bounds(), 1);
        for (int i = 0; i < std::abs(turn.steps); ++i) {
            const GdkEventCopy event = newGtkEvent(area, GDK_SCROLL);
            event->scroll.x = place.x;
            event->scroll.y = place.y;
            event->scroll.state = stateOf(turn.modifierFlags);
            event->scroll.direction = turn.steps > 0 ? GDK_SCROLL_UP : GDK_SCROLL_DOWN;
            gtk_widget_event(area, event.get());
        }
    }
    void placePointer(HostCustomView& view, HostPoint at) override
    {
        _hasMovedPointer = true;
        GtkWidget* widget = gtkWidgetOf(&view);
        static_cast<void>(runUntil([this, &view] { return placeOf(view).has_value(); }));
        const PixelPoint place = pixelPoint(at, view.bounds(), 1);
        int left = 0;
        int top = 0;
        int x = 0;
        int y = 0;
        gdk_window_get_origin(gtk_widget_get_window(_root.widget()), &left, &top);
        gtk_widget_translate_coordinates(widget, _root.widget(), static_cast<int>(place.x),
                                         static_cast<int>(place.y), &x, &y);
        warpPointer(left + x, top + y);
    }
    void pressOK() override
    {
        _panel.finishEditing();
        handleEvents();
    }

    std::optional<PixelRect> placeOf(const HostView& view) override
    {
        GtkWidget* widget = gtkWidgetOf(&view);
        if (widget == nullptr || !gtk_widget_get_mapped(widget)) return std::nullopt;
        GtkAllocation room;
        gtk_widget_get_allocation(widget, &room);
        int x = 0;
        int y = 0;
        if (!gtk_widget_translate_coordinates(widget, _root.widget(), 0, 0, &x, &y))
            return std::nullopt;
        return PixelRect{x, y, room.width, room.height};
    }
    std::u16string textIn(const HostTextField& field) override
    {
        GtkWidget* widget = gtkWidgetOf(&field);
        return GTK_IS_ENTRY(widget) ? coreText(gtk_entry_get_text(GTK_ENTRY(widget)))
                                    : coreText(gtk_label_get_text(GTK_LABEL(widget)));
    }
    std::optional<HostSelection> selectionIn(const HostTextField& field) override
    {
        GtkWidget* widget = gtkWidgetOf(&field);
        if (!gtk_widget_is_focus(widget)) return std::nullopt;
        const std::u16string text = textIn(field);
        int start = gtk_editable_get_position(GTK_EDITABLE(widget));
        int end = start;
        gtk_editable_get_selection_bounds(GTK_EDITABLE(widget), &start, &end);
        const std::size_t first = unitsOfCharacters(text, start);
        return HostSelection{first, unitsOfCharacters(text, end) - first};
    }
    bool isOn(const HostButton& button) override
    {
        return gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(gtkWidgetOf(&button))) != FALSE;
    }
    std::optional<std::u16string> tipOf(const HostView& view) override
    {
        GtkWidget* widget = dynamic_cast<const GtkPeer&>(view).activeWidget();
        if (!gtk_widget_get_has_tooltip(widget)) return std::nullopt;
        return coreText(GText(gtk_widget_get_tooltip_text(widget)).get());
    }
    std::array<int, 3> pixelAt(HostPoint inRoot) override
    {
        // Reading from the screen causes events, which would come before what is to be painted.
        handleEvents();
        const PixelPoint place = pixelPoint(inRoot, _root.bounds(), 1);
        return pixelOf(_root.widget(), static_cast<int>(place.x), static_cast<int>(place.y) - 1);
    }
    std::string identifierOf(const HostView& view) override
    {
        GtkWidget* widget = gtkWidgetOf(&view);
        return widget != nullptr ? gtk_widget_get_name(widget) : std::string();
    }
    std::optional<std::u16string> spokenNameOf(const HostView& view) override
    {
        const char* name = atk_object_get_name(gtk_widget_get_accessible(gtkWidgetOf(&view)));
        return coreText(name != nullptr ? name : "");
    }
    std::optional<HostPasteboardItem> carried() override { return _carried; }
    std::u16string textOnClipboard() override
    {
        gchar* text = gtk_clipboard_wait_for_text(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD));
        std::u16string found = coreText(text != nullptr ? text : "");
        g_free(text);
        return found;
    }

protected:
    void callLater(std::function<void()> function) override
    {
        _later.callAfter(0, std::move(function));
    }

private:
    void willOpen(const HostPopUpButton& popUp)
    {
        _opened = GtkWeakWidget(gtkWidgetOf(&popUp));
        _listed = popUp.menu();
    }

    static constexpr int pointerElsewhere = 700;

    static void warpPointer(int x, int y)
    {
#if GTK_MAJOR_VERSION >= 3
        GdkSeat* seat = gdk_display_get_default_seat(gdk_display_get_default());
        gdk_device_warp(gdk_seat_get_pointer(seat), gdk_screen_get_default(), x, y);
#else
        gdk_display_warp_pointer(gdk_display_get_default(), gdk_screen_get_default(), x, y);
#endif
    }

    static void sendTurn(GtkWidget* widget, HostRect bounds, const HostEvent& event)
    {
        const guint state = stateOf(event.modifierFlags);
        switch (event.type) {
            case HostEventType::leftMouseDown:
                sendMouse(widget, bounds, GDK_BUTTON_PRESS, event.location, state);
                break;
            case HostEventType::leftMouseUp:
                sendMouse(widget, bounds, GDK_BUTTON_RELEASE, event.location,
                          state | GDK_BUTTON1_MASK);
                break;
            default:
                sendMouse(widget, bounds, GDK_MOTION_NOTIFY, event.location,
                          state | GDK_BUTTON1_MASK);
                break;
        }
    }

    /// Reads what the running drag carries, and ends it at the release.
    void drop(GtkWidget* source, const HostEvent& event)
    {
        if (event.type != HostEventType::leftMouseUp) return;
        GdkDragContext* drag = std::exchange(_drag, nullptr);
        _carried = dataOfDrag(source, drag);
#if GTK_MAJOR_VERSION >= 3
        gtk_drag_cancel(drag);
#else
        static_cast<void>(drag);
        sendKey(gtk_grab_get_current(), GDK_KEY_Escape);
#endif
    }

    GtkWeakWidget _window;
    GtkHostDesktop _desktop;
    GtkMirrored<HostView> _root{{0, 0, 300, 200}, newHostBox(true)};
    PanelUnderTest<GtkToolkitPanel> _panel{_dialog, EmbeddingTraits{}, _desktop, _root};
    GtkWeakWidget _opened;
    HostMenu _listed;
    /// The drag out of a view that is on its way.
    GdkDragContext* _drag = nullptr;
    std::optional<HostPasteboardItem> _carried;
    GtkDeferral _later;
    bool _hasMovedPointer = false;
};

}  // namespace

std::unique_ptr<HostUnderTest> makeHostUnderTest()
{
    return std::make_unique<GtkUnderTest>();
}

}  // namespace vantorel
