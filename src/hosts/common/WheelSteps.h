#pragma once

#include <algorithm>
#include <cmath>

namespace vantorel {

/// Counts the whole steps of a mouse wheel. Fine wheels and touch pads report parts of a step,
/// which add up.
class WheelSteps {
public:
    /// Returns the whole steps that a turn completes. The turn is measured in steps; both are
    /// positive when turned away from the user.
    [[nodiscard]] int stepsOf(double turn)
    {
        // Ten tenths must be a step although a tenth has no exact binary form.
        constexpr double tolerance = 1e-6;
        constexpr double mostSteps = 1000;
        // A turn the other way starts anew.
        if ((turn > 0) != (_rest > 0)) _rest = 0;
        _rest = std::clamp(_rest + turn, -mostSteps, mostSteps);
        const double steps = std::trunc(_rest + std::copysign(tolerance, _rest));
        _rest -= steps;
        return static_cast<int>(steps);
    }

private:
    double _rest = 0;
};

}  // namespace vantorel
