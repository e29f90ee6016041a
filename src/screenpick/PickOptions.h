#pragma once

#include "host/HostColor.h"

#include <array>
#include <functional>
#include <string>

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
    /// Returns a name for a colour, which the magnifier shows below its code. Without it, or for an
    /// empty name, the magnifier shows the code alone. Called for each colour under the pointer.
    std::function<std::u16string(const HostColor&)> nameOf = nullptr;
    /// Called for a letter from A to Z that means nothing to the magnifier. If it returns true, the
    /// key picks, and ends the pick as Return does.
    std::function<bool(char letter)> picksByLetter = nullptr;
};

}  // namespace vantorel
