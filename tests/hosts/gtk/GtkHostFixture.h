#pragma once

#include "hosts/gtk/GtkHostBox.h"
#include "hosts/gtk/GtkHostCustomView.h"
#include "hosts/gtk/GtkHostDesktop.h"
#include "hosts/gtk/GtkHostView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace vantorel {

/// Lets the program run until something has happened; fails after ten seconds.
inline void runUntil(const std::function<bool()>& hasHappened)
{
    bool isLate = false;
    GtkDeferral limit;
    limit.callAfter(10000, [&] { isLate = true; });
    while (!hasHappened() && !isLate)
        g_main_context_iteration(nullptr, TRUE);
    EXPECT_FALSE(isLate) << "it did not happen";
}

/// Handles all events that have arrived.
inline void handleEvents()
{
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

/// A window whose content is a box for views.
class GtkHostTest : public testing::Test {
protected:
    GtkHostTest() : _window(gtk_window_new(GTK_WINDOW_TOPLEVEL))
    {
        gtk_container_add(GTK_CONTAINER(_window.get()), root.widget());
        gtk_widget_show(root.widget());
        root.setFrame({0, 0, 300, 200});
        gtk_widget_set_size_request(root.widget(), 300, 200);
    }

    ~GtkHostTest() override
    {
        if (GtkWidget* window = _window.get()) gtk_widget_destroy(window);
        handleEvents();
    }

    void showWindow()
    {
        gtk_widget_show(_window.get());
        runUntil([this] { return gtk_widget_get_mapped(root.widget()) != FALSE; });
        handleEvents();
    }

    [[nodiscard]] GtkWidget* window() const { return _window.get(); }

    static HostControlDescription described(HostRect frame)
    {
        HostControlDescription description;
        description.identifier = "control";
        description.frame = frame;
        description.accessibleName = u"Control";
        return description;
    }

    /// A press, move or release at a place of a view, in its own coordinates.
    static void sendMouse(const GtkHostCustomView& view, GdkEventType type, HostPoint at,
                          guint state = 0)
    {
        GtkWidget* area = view.activeWidget();
        const PixelPoint place = pixelPoint(at, view.bounds(), 1);
        const GdkEventCopy event(gdk_event_new(type));
        event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(area)));
        if (type == GDK_MOTION_NOTIFY) {
            event->motion.x = place.x;
            event->motion.y = place.y;
            event->motion.state = state;
        } else {
            event->button.x = place.x;
            event->button.y = place.y;
            event->button.button = 1;
            event->button.state = state;
        }
#if GTK_MAJOR_VERSION >= 3
        GdkSeat* seat = gdk_display_get_default_seat(gtk_widget_get_display(area));
        gdk_event_set_device(event.get(), gdk_seat_get_pointer(seat));
#endif
        gtk_widget_event(area, event.get());
    }

    static bool sendKey(GtkWidget* widget, guint key, guint state = 0)
    {
        const GdkEventCopy event(gdk_event_new(GDK_KEY_PRESS));
        event->key.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(widget)));
        event->key.keyval = key;
        event->key.state = state;
#if GTK_MAJOR_VERSION >= 3
        GdkSeat* seat = gdk_display_get_default_seat(gtk_widget_get_display(widget));
        gdk_event_set_device(event.get(), gdk_seat_get_keyboard(seat));
#endif
        return gtk_widget_event(widget, event.get()) != FALSE;
    }

private:
    GtkWeakWidget _window;

protected:
    GtkHostDesktop desktop;
    HostInterfaceFactory& factory = desktop.interfaceFactory();
    GtkMirrored<HostView> root{{0, 0, 300, 200}, newHostBox(true)};
};

/// A content that records the events that it gets.
class RecordingContent final : public HostViewContent {
public:
    void drawRect(HostCanvas& canvas) override
    {
        if (paint) paint(canvas);
        ++drawings;
    }
    void mouseDown(const HostEvent& event) override
    {
        events.emplace_back("down");
        if (whenPressed) whenPressed(event);
    }
    void mouseDragged(const HostEvent&) override { events.emplace_back("dragged"); }
    void mouseMoved(const HostEvent&) override { events.emplace_back("moved"); }
    void mouseEntered(const HostEvent&) override { events.emplace_back("entered"); }
    void mouseExited(const HostEvent&) override { events.emplace_back("exited"); }
    [[nodiscard]] bool takesKeys() const override { return true; }
    bool keyDown(const HostKeyEvent& event) override
    {
        keys.push_back(event.key);
        return true;
    }

    std::vector<std::string> events;
    std::vector<HostKey> keys;
    int drawings = 0;
    std::function<void(HostCanvas&)> paint;
    std::function<void(const HostEvent&)> whenPressed;
};

}  // namespace vantorel
