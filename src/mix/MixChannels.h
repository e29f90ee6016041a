#pragma once

#include "colormath/MixSpaces.h"
#include "host/HostDesktop.h"
#include "host/HostNumberField.h"

#include <array>
#include <string>

namespace vantorel {

inline constexpr std::array mixSpaces{MixSpace::oklch, MixSpace::hsl, MixSpace::hsv, MixSpace::lab};

/// The words and numbers of a space's component, or of the opacity.
struct MixChannel {
    /// In the user's language.
    std::u16string name;
    /// Stands for the name where there is little room.
    std::u16string letter;
    HostNumberFormat format;
    /// The number of a component's value of 1.
    double scale = 1;
};

[[nodiscard]] MixChannel channelOf(HostDesktop& desktop, MixSpace space, std::size_t component);
[[nodiscard]] MixChannel opacityChannel(HostDesktop& desktop);

/// The name of a space, the same in every language.
[[nodiscard]] std::u16string nameOf(MixSpace space);

}  // namespace vantorel
