#pragma once

#include "host/HostColor.h"

/// The fixed colours of the picker's own drawing; they are the same in light and dark themes,
/// because the colours beside them are to be judged against one known ground.
namespace vantorel {

[[nodiscard]] constexpr HostColor colorFromBytes(int red, int green, int blue)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, 1.0);
}

inline constexpr HostColor hexColorsViewBackgroundColorS = colorFromBytes(241, 241, 245);
/// Cursor and marks when the colour is on the 8-bit grid, or equals the swatch.
inline constexpr HostColor hexColorsSelectedColorWithMatchColorS = colorFromBytes(30, 80, 30);
/// The same when it is not, or is only close.
inline constexpr HostColor hexColorsSelectedColorWithoutMatchColorS = colorFromBytes(200, 30, 30);
inline constexpr HostColor dragStringColorS = colorFromBytes(0, 0, 129);

inline constexpr HostColor darkGrayColor =
    HostColor::colorWithCalibratedRed(1.0 / 3, 1.0 / 3, 1.0 / 3, 1.0);

}  // namespace vantorel
