#pragma once

#include "host/HostGeometry.h"

namespace vantorel {

/// How a view is resized with its superview. The change of size is shared equally between the parts
/// that are set to true. If none is set, the view keeps its size and its distance from the lower
/// left corner.
struct HostResizing {
    bool leftMargin = false;
    bool width = false;
    bool rightMargin = false;
    bool bottomMargin = false;
    bool height = false;
    bool topMargin = false;

    bool operator==(const HostResizing&) const = default;
};

/// The frame of a view, and how it follows the size of the superview.
///
/// A superview can become too small for a view. The view's size is 0 then, but its frame keeps the
/// size that it should have, which may be negative. So the view recovers its size when the
/// superview grows again.
class HostViewFrame {
public:
    explicit HostViewFrame(HostRect asked) : _asked(asked) {}

    /// The frame that is shown: negative widths and heights are 0.
    [[nodiscard]] HostRect shown() const;
    /// The frame as it was set.
    [[nodiscard]] HostRect asked() const { return _asked; }
    void set(HostRect asked) { _asked = asked; }

    void setResizing(HostResizing resizing) { _resizing = resizing; }

    /// Returns what to set when the superview has grown by `growth`.
    [[nodiscard]] HostRect afterGrowth(HostSize growth) const;

private:
    HostRect _asked;
    HostResizing _resizing;
};

}  // namespace vantorel
