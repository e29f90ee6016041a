#pragma once

#include "host/HostGeometry.h"

#include <array>

namespace vantorel {

/// A slider with its name and its number.
struct MixRowFrames {
    HostRect label;
    HostRect track;
    HostRect number;
};

/// The places of the page's parts. Those of the plane and the sliders include room for their marks.
struct MixFrames {
    /// The frame around the segments.
    HostRect choice;
    HostRect plane;
    HostRect bar;
    /// Whether sliders have names rather than letters.
    bool showsWords = false;
    std::array<MixRowFrames, 4> rows;
};

/// The size of all texts, in points.
inline constexpr double mixTextSize = 12;
/// The least size of a page in which every part can be used.
inline constexpr HostSize leastMixPage{230, 240};

/// `widestWord` is the width of the widest name. A smaller page than the least one is laid out as
/// if it had that size, from its upper left corner.
[[nodiscard]] MixFrames mixFrames(HostSize page, double widestWord);

}  // namespace vantorel
