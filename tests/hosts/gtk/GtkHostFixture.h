#pragma once

#include "GtkHand.h"
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
    EXPECT_TRUE(runGtkUntil(hasHappened)) << "it did not happen";
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
        handleGtkEvents();
    }

    void showWindow()
    {
        gtk_widget_show(_window.get());
        runUntil([this] { return gtk_widget_get_mapped(root.widget()) != FALSE; });
        handleGtkEvents();
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
