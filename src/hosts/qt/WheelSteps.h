#pragma once

#include <QWheelEvent>

namespace vantorel {

/// Whole steps of a mouse wheel. Fine wheels and touch pads report parts of a step, which add up.
class WheelSteps {
public:
    /// Returns the whole steps that an event completes; positive when turned away from the user.
    [[nodiscard]] int stepsOf(const QWheelEvent& event)
    {
        const int turned = event.angleDelta().y();
        // A turn the other way starts anew.
        if ((turned > 0) != (_rest > 0)) _rest = 0;
        _rest += turned;
        const int steps = _rest / QWheelEvent::DefaultDeltasPerStep;
        _rest %= QWheelEvent::DefaultDeltasPerStep;
        return steps;
    }

private:
    int _rest = 0;
};

}  // namespace vantorel
