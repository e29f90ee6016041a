#pragma once

#include "host/HostColorPicker.h"
#include "testing/headless/HeadlessDesktop.h"

#include <deque>

namespace vantorel {

/// A colour panel with one picker and no screen. A bar of its own stands above the picker's page.
class HeadlessColorPanel final : public HostColorPanel {
public:
    static constexpr double barHeight = 32;

    /// `desktop` must outlive the panel.
    HeadlessColorPanel(HeadlessDesktop& desktop, HostRect frame, std::optional<HostColor> color);
    ~HeadlessColorPanel() override;

    /// The picker whose page the panel shows; it must be taken away (null) before it ends.
    void setPicker(HostColorPicker* picker);
    /// Shows the page's view, or nothing for null.
    void showPage(HostView* view);

    HeadlessDesktop& desktop() override { return _desktop; }
    [[nodiscard]] std::optional<HostColor> color() const override { return _color; }
    void setColor(const std::optional<HostColor>& color) override;
    [[nodiscard]] HostRect frame() const override { return _frame; }
    void setFrame(HostRect frame, bool display) override;
    [[nodiscard]] bool acceptsMouseMovedEvents() const override { return _acceptsMouseMoved; }
    void setAcceptsMouseMovedEvents(bool flag) override { _acceptsMouseMoved = flag; }
    [[nodiscard]] HostPoint mouseLocation(const HostView& view) const override;
    void makeFirstResponder(HostView&) override {}
    HostFieldEditor* fieldEditor(HostTextField& field) override;
    /// Takes the next such event of the queue and leaves the others there; when there is none, the
    /// button is released at the last point.
    HostEvent nextEventMatchingMask(std::uint32_t mask, HostView& view) override;
    /// Takes the events up to the next release.
    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) override;

    // What happens outside the picker.

    /// Another page has changed the colour.
    void changeColor(std::optional<HostColor> color);
    /// The user has resized the panel; its top left corner stays.
    void resize(HostSize size);
    /// Where the pointer is, in the coordinates of the custom view; far outside for nothing.
    void setPointer(std::optional<HostPoint> point);
    /// Delivers events to a view, in order.
    void deliver(const std::vector<HostEvent>& events, HeadlessCustomView& view);

private:
    void deliver(const HostEvent& event, HeadlessCustomView& view);
    /// Takes an event out of the queue.
    HostEvent takeEvent(const std::deque<HostEvent>::const_iterator& place);
    void applyFrame(HostRect frame);
    [[nodiscard]] HostRect pageFrame() const;

    HeadlessDesktop& _desktop;
    HostRect _frame;
    HostView _contentView;
    HostView* _page = nullptr;
    HostColorPicker* _picker = nullptr;
    std::optional<HostColor> _color;
    bool _acceptsMouseMoved = false;
    HostPoint _pointer;
    std::deque<HostEvent> _events;
};

}  // namespace vantorel
