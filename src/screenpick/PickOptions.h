#pragma once

#include "host/HostColor.h"

#include <array>
#include <functional>

namespace vantorel {

/// The sides of the squares whose average can be picked, in pixels of the screen.
inline constexpr std::array averagedSides{1, 3, 5, 11};

/// How to pick from the screen.
struct PickOptions {
    /// One of `averagedSides`. An average is that of light, not of the encoded values.
    int averagedSide = 1;
    /// Whether the keys of the magnifier are explained.
    bool showsHints = false;
    /// Called for each colour that is picked without ending the pick. Without it every pick is the
    /// last one.
    std::function<void(const HostColor&)> pickedOnTheWay = nullptr;
    /// Whether no pick ends it, but only the user who leaves. Has no effect without a receiver of
    /// colours that are picked on the way, and in the desktop's own picker.
    bool goesOn = false;
};

}  // namespace vantorel
