#pragma once

#include "HostUnderTest.h"
#include "ScopedEnvironment.h"
#include "ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {

/// A user without any files. Desktops that are made while this exists belong to this user.
class NewUser {
public:
    NewUser()
    {
        for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            _environment.set(name, _home.path().string());
    }

    [[nodiscard]] const std::filesystem::path& home() const { return _home.path(); }

private:
    ScratchFolder _home;
    ScopedEnvironment _environment;
};

/// A host with an open window.
class ConformanceTest : public testing::Test {
protected:
    ConformanceTest() { host->showWindow(); }

    [[nodiscard]] HostControlDescription described(HostRect frame)
    {
        HostControlDescription description;
        description.identifier = "control" + std::to_string(++_described);
        description.frame = frame;
        description.accessibleName = u"Control";
        return description;
    }

    /// Runs until the host shows a view at a place; the reason to wait is a failure.
    void expectPlace(const HostView& view, const std::optional<PixelRect>& place)
    {
        static_cast<void>(host->runUntil([&] { return host->placeOf(view) == place; }));
        const auto seen = host->placeOf(view);
        ASSERT_EQ(seen.has_value(), place.has_value());
        if (!place) return;
        EXPECT_EQ(seen->x, place->x);
        EXPECT_EQ(seen->y, place->y);
        EXPECT_EQ(seen->width, place->width);
        EXPECT_EQ(seen->height, place->height);
    }

    NewUser user;
    std::unique_ptr<HostUnderTest> host = makeHostUnderTest();
    HostInterfaceFactory& factory = host->desktop().interfaceFactory();
    HostView& root = host->root();

private:
    int _described = 0;
};

/// A content that fills its view with a colour and records the events that it gets.
class RecordedContent final : public HostViewContent {
public:
    void drawRect(HostCanvas& canvas) override
    {
        ++drawings;
        HostBezierPath path;
        path.appendBezierPathWithRect(filled);
        canvas.fill(path, color);
    }
    void mouseDown(const HostEvent& event) override
    {
        record("down", event);
        if (whenPressed) whenPressed();
    }
    void mouseDragged(const HostEvent& event) override
    {
        record("dragged", event);
        // A copy, because the reaction may replace itself.
        if (const auto reaction = whenDragged) reaction(event);
    }
    void mouseUp(const HostEvent& event) override { record("up", event); }
    void mouseMoved(const HostEvent& event) override { record("moved", event); }
    void mouseEntered(const HostEvent& event) override { record("entered", event); }
    void mouseExited(const HostEvent& event) override { record("exited", event); }
    bool scrollWheel(const HostScrollEvent& event) override
    {
        scrolls.push_back(event);
        return true;
    }

    HostRect filled{0, 0, 1000, 1000};
    HostColor color = HostColor::colorWithCalibratedRed(1, 0, 0, 1);
    std::vector<std::string> names;
    std::vector<HostEvent> events;
    std::vector<HostScrollEvent> scrolls;
    int drawings = 0;
    std::function<void()> whenPressed;
    std::function<void(const HostEvent&)> whenDragged;

private:
    void record(const char* name, const HostEvent& event)
    {
        names.emplace_back(name);
        events.push_back(event);
    }
};

[[nodiscard]] inline HostEvent pressAt(HostPoint at, std::uint64_t flags = 0)
{
    return {HostEventType::leftMouseDown, at, flags};
}
[[nodiscard]] inline HostEvent dragTo(HostPoint at, std::uint64_t flags = 0)
{
    return {HostEventType::leftMouseDragged, at, flags};
}
[[nodiscard]] inline HostEvent releaseAt(HostPoint at, std::uint64_t flags = 0)
{
    return {HostEventType::leftMouseUp, at, flags};
}

[[nodiscard]] inline HostMenuItem titledItem(const std::u16string& title)
{
    HostMenuItem item;
    item.title = title;
    return item;
}

}  // namespace vantorel
