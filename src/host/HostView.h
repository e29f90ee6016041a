#pragma once

#include "host/HostGeometry.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vantorel {

/// How a view follows its superview when that changes size. The parts named may stretch; the
/// change of size is shared equally between them. With none named, the view keeps its place at the
/// lower left.
struct HostResizing {
    bool leftMargin = false;
    bool width = false;
    bool rightMargin = false;
    bool bottomMargin = false;
    bool height = false;
    bool topMargin = false;

    bool operator==(const HostResizing&) const = default;
};

/// A rectangle of the interface, in a tree of its like. A desktop derives its own views from this
/// class and mirrors the state below in its widgets through the hooks at the end.
///
/// Frames are in the superview's coordinates, bounds in the view's own; y points up. The scale is
/// always 1: the size of the bounds is that of the frame, only their origin can differ from (0, 0).
///
/// The tree does not own: whoever made a view keeps it, and a view that ends leaves the tree.
class HostView {
public:
    explicit HostView(HostRect frame);
    HostView(const HostView&) = delete;
    HostView& operator=(const HostView&) = delete;
    virtual ~HostView();

    [[nodiscard]] HostRect frame() const { return _frame; }
    /// Also resizes the subviews by their resizing rules. Widths and heights below 0 count as 0.
    void setFrame(HostRect frame);
    /// Takes over the frame of another view, and with it what that one would get back when their
    /// superview, too small now, grows.
    void setFrameOf(const HostView& view) { setFrame(view._askedFrame); }
    /// Moves the view without changing its size.
    void setFrameOrigin(HostPoint origin)
    {
        setFrame({origin.x, origin.y, _frame.width, _frame.height});
    }

    [[nodiscard]] HostRect bounds() const { return _bounds; }
    /// Sets the origin of the view's own coordinates; the size is taken from the frame.
    void setBounds(HostRect bounds);

    [[nodiscard]] HostView* superview() const { return _superview; }
    [[nodiscard]] const std::vector<HostView*>& subviews() const { return _subviews; }
    /// Puts `view` on top of the other subviews, taking it out of where it was.
    void addSubview(HostView& view);
    void removeFromSuperview();

    [[nodiscard]] HostResizing resizing() const { return _resizing; }
    void setResizing(HostResizing resizing) { _resizing = resizing; }

    /// Nothing removes the tool tip.
    void setToolTip(std::optional<std::u16string> text);
    [[nodiscard]] const std::optional<std::u16string>& toolTip() const { return _toolTip; }

    using AccessibleDescription = std::function<std::u16string()>;
    /// What assistive technology tells of the view's content besides its name. It is asked for when
    /// somebody wants to know. Whoever changes the answer also has the view drawn again.
    void setAccessibleDescription(AccessibleDescription description)
    {
        _accessibleDescription = std::move(description);
    }
    [[nodiscard]] std::optional<std::u16string> accessibleDescription() const
    {
        return _accessibleDescription ? std::optional(_accessibleDescription()) : std::nullopt;
    }

    /// Marks the whole view for redrawing, or takes the mark away.
    void setNeedsDisplay(bool flag);
    /// Marks a part of the view, in its own coordinates.
    void setNeedsDisplayInRect(HostRect rect);
    [[nodiscard]] bool needsDisplay() const { return _needsDisplay; }

protected:
    virtual void frameDidChange() {}
    virtual void boundsDidChange() {}
    /// The superview changed; it may be null now.
    virtual void hierarchyDidChange() {}
    virtual void toolTipDidChange() {}
    /// `rect` must be drawn again, in the view's own coordinates.
    virtual void displayDidBecomeNeeded(HostRect rect);

private:
    void resizeSubviews(HostSize oldSize);

    HostRect _frame;
    /// The frame before negative sizes were cut to 0: what a superview that becomes too small takes
    /// from its subviews they get back when it grows.
    HostRect _askedFrame;
    HostRect _bounds;
    HostView* _superview = nullptr;
    std::vector<HostView*> _subviews;
    HostResizing _resizing;
    std::optional<std::u16string> _toolTip;
    AccessibleDescription _accessibleDescription;
    bool _needsDisplay = true;
};

}  // namespace vantorel
