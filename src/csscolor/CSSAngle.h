#pragma once

#include <cmath>
#include <numbers>
#include <string_view>

/// The units of angles, by CSS Values 4.
namespace vantorel {

/// How many of a unit make a turn; 0 if `unit` is not a unit of an angle. The unit is in lower
/// case.
[[nodiscard]] inline double unitsPerTurn(std::u16string_view unit)
{
    if (unit == u"deg") return 360;
    if (unit == u"grad") return 400;
    if (unit == u"rad") return 2 * std::numbers::pi;
    if (unit == u"turn") return 1;
    return 0;
}

/// The angle in degrees, without whole turns. They are left out in the unit itself, where that
/// leaves no rounding error.
[[nodiscard]] inline double degreesOf(double number, double unitsInTurn)
{
    return std::fmod(number, unitsInTurn) / unitsInTurn * 360;
}

}  // namespace vantorel
