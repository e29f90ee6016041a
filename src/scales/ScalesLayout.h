#pragma once

#include "host/HostGeometry.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace vantorel {

/// The places of the page's parts.
struct ScalesFrames {
    /// Where a section is chosen; empty if all are shown.
    std::optional<HostRect> choice;
    /// Empty for the sections that are not shown.
    std::vector<std::optional<HostRect>> sections;
};

/// The least size of a page in which every part can be used.
inline constexpr HostSize leastScalesPage{230, 268};

/// Places the sections in one or two columns if the page is large enough for all of them. Otherwise
/// there is a choice, and below it the chosen section with as many of those after and before it as
/// there is room for. `leastHeight` returns the least height of a section at a width. A smaller
/// page than the least one is laid out as if it had that size, from its upper left corner.
[[nodiscard]] ScalesFrames scalesFrames(
    HostSize page, std::size_t count, std::size_t chosen,
    const std::function<double(std::size_t section, double width)>& leastHeight);

}  // namespace vantorel
