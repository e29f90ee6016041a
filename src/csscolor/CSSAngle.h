#pragma once

#include <cmath>
#include <numbers>
#include <string_view>

/// The units of angles in CSS Values 4.
namespace vantorel {

/// Returns the number of units in a full turn, or 0 if `unit` is not a unit of angles. `unit` must
/// be in lower case.
[[nodiscard]] inline double unitsPerTurn(std::u16string_view unit)
{
    if (unit == u"deg") return 360;
    if (unit == u"grad") return 400;
    if (unit == u"rad") return 2 * std::numbers::pi;
    if (unit == u"turn") return 1;
    return 0;
}

/// Converts an angle to degrees and drops whole turns. The turns are dropped before the conversion,
/// which avoids a rounding error. A calculation needs them: a half of 1.5 turns is not a quarter.
[[nodiscard]] inline double degreesOf(double number, double unitsInTurn)
{
    return std::fmod(number, unitsInTurn) / unitsInTurn * 360;
}

}  // namespace vantorel
