#pragma once

#include "host/HostDesktop.h"
#include "host/HostEvent.h"
#include "host/HostPasteboard.h"

#include <cstdint>
#include <optional>

namespace vantorel {

class HostFieldEditor;
struct HostImage;

/// The two colours of a panel that shows how well one can be seen on the other.
struct HostColorPair {
    HostColor color = HostColor::blackColor();
    HostColor background = HostColor::whiteColor();
    /// Whether the panel's colour, which pages show and change, is the background.
    bool editsBackground = false;

    bool operator==(const HostColorPair&) const = default;
};

/// The colour panel, of which a picker is a page. The panel outlives its pickers.
class HostColorPanel {
public:
    virtual ~HostColorPanel() = default;

    /// The desktop services of this panel.
    virtual HostDesktop& desktop() = 0;

    [[nodiscard]] virtual std::optional<HostColor> color() const = 0;
    /// Sets the panel's colour and passes it to the current picker's `setColor` before returning. A
    /// panel that always has a colour ignores `std::nullopt`.
    virtual void setColor(const std::optional<HostColor>& color) = 0;

    /// Returns both colours of a panel that has two, or `std::nullopt` if it has only `color()`.
    /// They may be outside sRGB.
    [[nodiscard]] virtual std::optional<HostColorPair> colorPair() const { return std::nullopt; }

    /// The page is about to set the colour in steps while the user drags, or has set the last one.
    /// Panels with an undo history or swatches add only the colour at the end. A drag may also end
    /// without a change.
    virtual void continuousChangeDidBegin() {}
    virtual void continuousChangeDidEnd() {}

    /// The size of the panel with everything in it, of which a page is a part. A page lays itself
    /// out by the size of its own view; this only says how far away a place outside the panel is.
    [[nodiscard]] virtual HostSize size() const = 0;
    /// Asks for a page that is wider and higher by `growth`, whose sides are not negative. The
    /// panel's top left corner keeps its position. Returns how much the page has grown: all of it,
    /// less, or (0, 0) if the panel cannot grow. Where the desktop allows it, the page is resized
    /// before this returns.
    virtual HostSize growPage(HostSize growth) = 0;

    [[nodiscard]] virtual bool acceptsMouseMovedEvents() const = 0;
    virtual void setAcceptsMouseMovedEvents(bool flag) = 0;
    /// The current position of the pointer, in the coordinates of `view`.
    [[nodiscard]] virtual HostPoint mouseLocation(const HostView& view) const = 0;
    virtual void makeFirstResponder(HostView& view) = 0;
    /// Returns the editor of a text field while the user is editing it, else null. Do not keep the
    /// pointer.
    virtual HostFieldEditor* fieldEditor(HostTextField& field) = 0;

    /// Waits for the panel's next event of a type in `mask` and removes it from the queue. The rest
    /// of the program keeps running meanwhile. A desktop may drop the events of other types that
    /// come before it. If none can come, because the button is up, or the view or the panel goes
    /// out of sight or is destroyed, a left-mouse-up at the last location is returned. The event's
    /// location is in the coordinates of `view`.
    virtual HostEvent nextEventMatchingMask(std::uint32_t mask, HostView& view) = 0;

    /// Runs a drag that starts at `event`'s location. Returns when the drag has ended, by a drop or
    /// otherwise.
    virtual void dragImage(const HostImage& image, const HostPasteboardItem& item,
                           const HostEvent& event, HostView& source) = 0;

    /// Copies a text to the clipboard, where other programs find it.
    virtual void copyText(const std::u16string& text) = 0;
    /// Shows the user for a short time what the page has done, in a sentence in the user's
    /// language. A panel without a place for it shows nothing.
    virtual void report(const std::u16string& message) { static_cast<void>(message); }
};

}  // namespace vantorel
