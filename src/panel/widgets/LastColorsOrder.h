#pragma once

#include "host/HostColor.h"

#include <cstddef>
#include <vector>

namespace vantorel {

/// The last colours in the order in which they are shown: the pinned ones, then the others with the
/// newest first.
class LastColorsOrder {
public:
    LastColorsOrder() = default;
    /// A colour that is pinned is left out of the others.
    LastColorsOrder(std::vector<HostColor> pinned, std::vector<HostColor> recent);

    [[nodiscard]] const std::vector<HostColor>& pinned() const { return _pinned; }
    [[nodiscard]] const std::vector<HostColor>& others() const { return _others; }
    [[nodiscard]] bool isEmpty() const { return _pinned.empty() && _others.empty(); }
    /// `index` must be in range.
    [[nodiscard]] const HostColor& colorAt(int index) const;
    /// Returns false for an index out of range.
    [[nodiscard]] bool isPinned(int index) const;

    /// Returns the pinned colours after a pinned one has moved by `step` places. If there is no
    /// such place, they are as before.
    [[nodiscard]] std::vector<HostColor> pinnedAfterMoving(int index, int step) const;
    /// Returns the pinned colours after a colour has been put before the one at `place`, or at the
    /// end; it leaves its former place among them.
    [[nodiscard]] std::vector<HostColor> pinnedAfterDropping(const HostColor& color,
                                                             std::size_t place) const;

private:
    std::vector<HostColor> _pinned;
    std::vector<HostColor> _others;
};

}  // namespace vantorel
