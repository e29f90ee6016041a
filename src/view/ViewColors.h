#pragma once

#include "host/HostColor.h"

/// The fixed colours of the picker's own drawing. They are the same in light and dark themes, so
/// that colours are always judged against the same background.
namespace vantorel {

[[nodiscard]] constexpr HostColor colorFromBytes(int red, int green, int blue)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, 1.0);
}

inline constexpr HostColor hexColorsViewBackgroundColorS = colorFromBytes(241, 241, 245);
/// The cursor and marks if the colour is on the 8-bit grid or equals the swatch.
inline constexpr HostColor hexColorsSelectedColorWithMatchColorS = colorFromBytes(30, 80, 30);
/// The cursor and marks if the colour is off the grid or only close to the swatch.
inline constexpr HostColor hexColorsSelectedColorWithoutMatchColorS = colorFromBytes(200, 30, 30);
inline constexpr HostColor dragStringColorS = colorFromBytes(0, 0, 129);

inline constexpr HostColor darkGrayColor =
    HostColor::colorWithCalibratedRed(1.0 / 3, 1.0 / 3, 1.0 / 3, 1.0);

}  // namespace vantorel
