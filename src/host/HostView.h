#pragma once

#include "host/HostColor.h"
#include "host/HostGeometry.h"
#include "host/HostViewFrame.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// A rectangle of the interface, one node of a tree of views. A desktop derives its own views from
/// this class and mirrors the state below in its widgets through the hooks at the end.
///
/// Frames are in the superview's coordinates, bounds in the view's own; y points up. The scale is
/// always 1: the bounds have the size of the frame, and only their origin can differ from (0, 0).
///
/// Superviews do not own their subviews: whoever creates a view owns it. A view leaves the tree
/// when it is destroyed.
class HostView {
public:
    explicit HostView(HostRect frame) : _frame(frame) {}
    HostView(const HostView&) = delete;
    HostView& operator=(const HostView&) = delete;
    virtual ~HostView();

    [[nodiscard]] HostRect frame() const { return _frame.shown(); }
    /// Sets the frame and resizes the subviews by their resizing rules. Negative widths and heights
    /// are treated as 0.
    void setFrame(HostRect frame);
    /// Sets the frame of this view to that of another view, including its size before it was
    /// clamped to 0. If their superview is too small now and grows again, this view grows as the
    /// other one would have.
    void setFrameOf(const HostView& view) { setFrame(view._frame.asked()); }
    /// Moves the view without changing its size.
    void setFrameOrigin(HostPoint origin)
    {
        setFrame({origin.x, origin.y, frame().width, frame().height});
    }

    [[nodiscard]] HostRect bounds() const
    {
        return {_boundsOrigin.x, _boundsOrigin.y, frame().width, frame().height};
    }
    /// Sets the origin of the view's own coordinates. The size of `bounds` is ignored; the frame's
    /// size is used.
    void setBounds(HostRect bounds);

    [[nodiscard]] HostView* superview() const { return _superview; }
    [[nodiscard]] const std::vector<HostView*>& subviews() const { return _subviews; }
    /// Puts `view` on top of the other subviews and removes it from its previous superview. Has no
    /// effect if it is a subview already.
    void addSubview(HostView& view);
    void removeFromSuperview();

    void setResizing(HostResizing resizing) { _frame.setResizing(resizing); }

    /// Parks the view or brings it back. A page that has no use for a control just now moves it far
    /// away. Where "far away" ends up depends on the size of the page: what lies outside a small
    /// page can lie in the middle of a wide one. So a page also parks such a view. A parked view
    /// keeps its frame and stays in the tree, but desktops neither show it nor let it take clicks,
    /// the focus or the attention of assistive technology, whatever its frame.
    void setParked(bool flag);
    [[nodiscard]] bool isParked() const { return _isParked; }

    /// Sets the colour that the view paints below its subviews, for views that paint their ground
    /// themselves. Desktops choose readable colours for the labels and controls on it, whatever the
    /// theme. `std::nullopt`, as at first: the ground is that of the superview.
    void setGroundColor(const std::optional<HostColor>& color);
    /// Returns the colour of the ground that lies below the view's subviews, or `std::nullopt` for
    /// the desktop's own.
    [[nodiscard]] std::optional<HostColor> groundColor() const;

    /// Pass `std::nullopt` to remove the tool tip.
    void setToolTip(std::optional<std::u16string> text);
    [[nodiscard]] const std::optional<std::u16string>& toolTip() const { return _toolTip; }

    /// Gives the view another name for assistive technology than that of its description. Desktops
    /// override it.
    virtual void setAccessibleName(const std::u16string& name) { static_cast<void>(name); }

    /// Marks the whole view for redrawing, or removes the mark.
    void setNeedsDisplay(bool flag);
    /// Marks a part of the view, in its own coordinates, for redrawing.
    void setNeedsDisplayInRect(HostRect rect);
    [[nodiscard]] bool needsDisplay() const { return _needsDisplay; }

protected:
    virtual void frameDidChange() {}
    virtual void boundsDidChange() {}
    /// Called when the superview has changed; it may be null.
    virtual void hierarchyDidChange() {}
    virtual void parkedDidChange() {}
    /// Called when the view's own ground colour has changed. Subviews are not called.
    virtual void groundColorDidChange() {}
    virtual void toolTipDidChange() {}
    /// Called when `rect`, in the view's own coordinates, must be redrawn.
    virtual void displayDidBecomeNeeded(HostRect rect);

private:
    HostViewFrame _frame;
    HostPoint _boundsOrigin;
    HostView* _superview = nullptr;
    std::vector<HostView*> _subviews;
    std::optional<std::u16string> _toolTip;
    std::optional<HostColor> _groundColor;
    bool _isParked = false;
    bool _needsDisplay = true;
};

}  // namespace vantorel
