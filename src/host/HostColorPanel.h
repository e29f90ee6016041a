#pragma once

#include "host/HostDesktop.h"
#include "host/HostEvent.h"
#include "host/HostPasteboard.h"

#include <cstdint>
#include <optional>

namespace vantorel {

/// The colour panel that a picker is a page of. It outlives its pickers.
class HostColorPanel {
public:
    virtual ~HostColorPanel() = default;

    /// The services that come with the panel.
    virtual HostDesktop& desktop() = 0;

    [[nodiscard]] virtual std::optional<HostColor> color() const = 0;
    /// The panel keeps the colour and hands it to its current picker's `setColor` before it
    /// returns. A panel that always has a colour leaves no colour alone.
    virtual void setColor(const std::optional<HostColor>& color) = 0;

    /// The panel's place on the screen, y up.
    [[nodiscard]] virtual HostRect frame() const = 0;
    /// Moves and resizes the panel; its pages follow before this returns, where the desktop can.
    virtual void setFrame(HostRect frame, bool display) = 0;

    [[nodiscard]] virtual bool acceptsMouseMovedEvents() const = 0;
    virtual void setAcceptsMouseMovedEvents(bool flag) = 0;
    /// Where the pointer is now, in the own coordinates of `view`.
    [[nodiscard]] virtual HostPoint mouseLocation(const HostView& view) const = 0;
    virtual void makeFirstResponder(HostView& view) = 0;
    /// The editor of a text field while the user is in it, else null. Not to be kept.
    virtual HostFieldEditor* fieldEditor(HostTextField& field) = 0;

    /// Waits for the panel's next event of a type in `mask` and takes it, while the rest of the
    /// program goes on. Should the panel end meanwhile, the answer is a left-mouse-up.
    /// The location is in the own coordinates of `view`.
    virtual HostEvent nextEventMatchingMask(std::uint32_t mask, HostView& view) = 0;

    /// Runs a whole drag from `event`'s location and returns when it has ended, by a drop or not.
    virtual void dragImage(const HostImage& image, const HostPasteboardItem& item,
                           const HostEvent& event, HostView& source) = 0;
};

}  // namespace vantorel
