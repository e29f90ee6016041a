#pragma once

#include "host/HostControls.h"

#include <cstdint>

namespace vantorel {

/// Tells a drag across a field from a click into it. A desktop passes the mouse's events to it
/// while the user is not editing the field.
class ScrubGesture {
public:
    /// `field` must outlive this object.
    explicit ScrubGesture(HostTextField& field) : _field(field) {}

    /// The left button was pressed. Returns whether the gesture has begun; all events up to the
    /// release then belong to it. Places are in points, from left to right.
    [[nodiscard]] bool press(double x);
    [[nodiscard]] bool isUnderWay() const { return _isPressed; }
    /// The pointer has moved with the button down. The field may destroy itself and this object.
    void move(double x, std::uint64_t modifierFlags);
    /// The button was released. Returns true after a click, which begins the editing; the field
    /// still exists then.
    [[nodiscard]] bool release();
    /// The mouse goes elsewhere without a release.
    void breakOff();

private:
    HostTextField& _field;
    bool _isPressed = false;
    bool _isScrubbing = false;
    double _last = 0;
};

}  // namespace vantorel
