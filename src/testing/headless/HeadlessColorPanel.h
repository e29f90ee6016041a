#pragma once

#include "host/HostColorPicker.h"
#include "testing/headless/HeadlessDesktop.h"

#include <deque>

namespace vantorel {

/// A colour panel with one picker and no screen. Like a real panel it has a bar above the page.
class HeadlessColorPanel : public HostColorPanel {
public:
    static constexpr double barHeight = 32;

    /// `desktop` must outlive the panel.
    HeadlessColorPanel(HeadlessDesktop& desktop, HostRect frame, std::optional<HostColor> color);
    ~HeadlessColorPanel() override;

    /// Sets the picker whose page the panel shows. Pass null before the picker is destroyed.
    void setPicker(HostColorPicker* picker);
    /// Shows the view of a page. Pass null to show no page.
    void showPage(HostView* view);

    HeadlessDesktop& desktop() override { return _desktop; }
    [[nodiscard]] std::optional<HostColor> color() const override { return _color; }
    void setColor(const std::optional<HostColor>& color) override;
    [[nodiscard]] HostSize size() const override { return _frame.size(); }
    HostSize growPage(HostSize growth) override;
    [[nodiscard]] bool acceptsMouseMovedEvents() const override { return _acceptsMouseMoved; }
    void setAcceptsMouseMovedEvents(bool flag) override { _acceptsMouseMoved = flag; }
    [[nodiscard]] HostPoint mouseLocation(const HostView& view) const override;
    void makeFirstResponder(HostView&) override {}
    HostFieldEditor* fieldEditor(HostTextField& field) override;
    /// Takes the next event of the mask's types from the queue and leaves the others in it. If
    /// there is none, returns a release of the left button at the last pointer position.
    HostEvent nextEventMatchingMask(std::uint32_t mask, HostView& view) override;
    /// Consumes the events up to the next release of the button.
    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) override;
    void copyText(const std::u16string& text) override { _copiedText = text; }
    void report(const std::u16string& message) override { _reports.push_back(message); }
    [[nodiscard]] std::optional<HostColorPair> colorPair() const override;

    /// What was copied last; `std::nullopt` if nothing was.
    [[nodiscard]] const std::optional<std::u16string>& copiedText() const { return _copiedText; }
    /// All reports, in their order.
    [[nodiscard]] const std::vector<std::u16string>& reports() const { return _reports; }
    /// Gives the panel another colour beside its own one. At first it has none.
    void changeOtherColor(std::optional<HostColor> color, bool editsBackground);

    // Events outside the picker.

    /// The panel's frame on its imaginary screen, y up.
    [[nodiscard]] HostRect frame() const { return _frame; }
    /// Sets whether the panel can grow. It can at first.
    void setCanGrow(bool flag) { _canGrow = flag; }

    /// Changes the colour as another page would.
    void changeColor(std::optional<HostColor> color);
    /// Resizes the panel as a user would. Its top left corner keeps its position.
    void resize(HostSize size);
    /// Sets the pointer's position in the coordinates of the custom view. Pass `std::nullopt` for a
    /// pointer far outside the panel.
    void setPointer(std::optional<HostPoint> point);
    /// Delivers events to a view in their order.
    void deliver(const std::vector<HostEvent>& events, HeadlessCustomView& view);
    /// Adds an event to the queue.
    void post(const HostEvent& event) { _events.push_back(event); }

protected:
    /// Called when an event is wanted and the queue has none. May post events, or do what else
    /// happens to the program meanwhile.
    virtual void eventsRanOut() {}

private:
    void deliver(const HostEvent& event, HeadlessCustomView& view);
    /// Whether there is an event, if need be after `eventsRanOut`.
    [[nodiscard]] bool hasEvents();
    /// Removes an event from the queue and moves the pointer to its position.
    HostEvent takeEvent(const std::deque<HostEvent>::const_iterator& place);
    void applyFrame(HostRect frame);
    [[nodiscard]] HostRect pageFrame() const;

    HeadlessDesktop& _desktop;
    HostRect _frame;
    HostView _contentView;
    HostView* _page = nullptr;
    HostColorPicker* _picker = nullptr;
    std::optional<HostColor> _color;
    std::optional<HostColor> _otherColor;
    bool _editsBackground = false;
    std::optional<std::u16string> _copiedText;
    std::vector<std::u16string> _reports;
    bool _acceptsMouseMoved = false;
    bool _canGrow = true;
    HostPoint _pointer;
    std::deque<HostEvent> _events;
};

}  // namespace vantorel
