#include "hosts/common/ScrubGesture.h"

#include <cmath>
#include <utility>

namespace vantorel {
namespace {

/// A click of an unsteady hand moves the pointer less.
constexpr double leastDistance = 3;

}  // namespace

bool ScrubGesture::press(double x)
{
    if (!_field.canScrub()) return false;
    _isPressed = true;
    _isScrubbing = false;
    _last = x;
    return true;
}

void ScrubGesture::move(double x, std::uint64_t modifierFlags)
{
    using Phase = HostTextField::Scrub::Phase;
    if (!_isPressed) return;
    if (!_isScrubbing) {
        if (std::abs(x - _last) < leastDistance) return;
        _isScrubbing = true;
        // The number follows from here on, so that it does not jump.
        _last = x;
        _field.sendScrub({Phase::begin, 0, modifierFlags});
        return;
    }
    const double distance = x - std::exchange(_last, x);
    if (distance != 0) _field.sendScrub({Phase::move, distance, modifierFlags});
}

bool ScrubGesture::release()
{
    const bool isClick = _isPressed && !_isScrubbing;
    breakOff();
    return isClick;
}

void ScrubGesture::breakOff()
{
    _isPressed = false;
    if (!std::exchange(_isScrubbing, false)) return;
    _field.sendScrub({HostTextField::Scrub::Phase::end, 0, 0});
}

}  // namespace vantorel
