#pragma once

#include "embedding/EmbeddedPanel.h"
#include "testing/headless/HeadlessDesktop.h"
#include "testing/headless/MemoryFiles.h"

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vantorel {

/// A page that records the colours it gets and does what a test asks for.
class ObedientPicker final : public HostColorPicker {
public:
    ObedientPicker(std::uint32_t mask, HostColorPanel& panel) : HostColorPicker(mask, panel)
    {
        shown() = this;
    }
    ~ObedientPicker() override { shown() = nullptr; }

    /// The one that exists; null if there is none.
    [[nodiscard]] static ObedientPicker*& shown()
    {
        static ObedientPicker* picker = nullptr;
        return picker;
    }

    /// Called at the start of the functions below.
    [[nodiscard]] static std::function<void(const std::string& function)>& interruption()
    {
        static std::function<void(const std::string&)> code;
        return code;
    }

    HostView* provideNewView(bool) override
    {
        interrupt("provideNewView");
        return hasView() ? &_view : nullptr;
    }
    [[nodiscard]] static bool& hasView()
    {
        static bool flag = true;
        return flag;
    }
    [[nodiscard]] bool supportsMode(int) const override { return true; }
    [[nodiscard]] int currentMode() const override { return 0; }
    [[nodiscard]] std::u16string buttonToolTip() const override { return u"Test"; }
    [[nodiscard]] HostSize minContentSize() const override
    {
        interrupt("minContentSize");
        return {190, 117};
    }
    [[nodiscard]] HostSize preferredContentSize() const override { return {250, 400}; }
    void setColor(const std::optional<HostColor>& color) override
    {
        interrupt("setColor");
        colors.push_back(color.value());
    }
    void viewSizeChanged(HostView*) override
    {
        interrupt("viewSizeChanged");
        sizes.push_back(_view.frame().size());
    }
    bool performAction(std::string_view, HostControl*) override { return false; }

    [[nodiscard]] HostView& view() { return _view; }

    std::vector<HostColor> colors;
    std::vector<HostSize> sizes;

private:
    static void interrupt(const std::string& function)
    {
        if (interruption()) interruption()(function);
    }

    HostView _view{{0, 0, 1, 1}};
};

/// The toolkit's part of a panel, with a queue of events.
class QueuePanel : public HostColorPanel {
public:
    explicit QueuePanel(HeadlessDesktop& desktop) : _desktop(desktop) {}

    HeadlessDesktop& desktop() override { return _desktop; }
    [[nodiscard]] bool acceptsMouseMovedEvents() const override { return false; }
    void setAcceptsMouseMovedEvents(bool) override {}
    [[nodiscard]] HostPoint mouseLocation(const HostView&) const override { return {}; }
    void makeFirstResponder(HostView&) override {}
    HostFieldEditor* fieldEditor(HostTextField&) override { return nullptr; }
    HostEvent nextEventMatchingMask(std::uint32_t, HostView&) override
    {
        if (whileWaiting) whileWaiting();
        if (events.empty()) return {HostEventType::leftMouseUp, {}, 0};
        const HostEvent event = events.front();
        events.pop_front();
        return event;
    }
    void dragImage(const HostImage&, const HostPasteboardItem&, const HostEvent&,
                   HostView&) override
    {
        if (whileWaiting) whileWaiting();
    }
    void copyText(const std::u16string&) override {}

    std::deque<HostEvent> events;
    std::function<void()> whileWaiting;

private:
    HeadlessDesktop& _desktop;
};

/// A dialog that records the colours that it gets.
class RecordingDialog final : public EmbeddingDialog {
public:
    struct Chosen {
        HostColor color;
        bool isFinal;

        bool operator==(const Chosen&) const = default;
    };

    void colorChosen(const HostColor& color, bool isFinal) override
    {
        chosen.push_back({color, isFinal});
        if (reaction) reaction(color);
    }
    bool makeRoom(HostSize preferred, HostSize least) override
    {
        wantedRoom = {preferred, least};
        return hasRoom;
    }
    HostSize growHolder(HostSize wanted) override { return growth ? growth(wanted) : HostSize{}; }
    void pageDidFail() override { ++failures; }

    std::vector<Chosen> chosen;
    int failures = 0;
    bool hasRoom = true;
    /// The sizes that the page prefers and needs.
    std::pair<HostSize, HostSize> wantedRoom;
    std::function<void(const HostColor&)> reaction;
    std::function<HostSize(HostSize)> growth;
};

}  // namespace vantorel
