#include "host/HostViewFrame.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Distributes a superview's growth along one axis among the stretching parts of a view.
void stretch(double growth, bool before, bool itself, bool after, double& position, double& length)
{
    const int parts = int{before} + int{itself} + int{after};
    if (parts == 0) return;
    const double share = growth / parts;
    if (before) position += share;
    if (itself) length += share;
}

}  // namespace

HostRect HostViewFrame::shown() const
{
    return {_asked.x, _asked.y, std::max(0.0, _asked.width), std::max(0.0, _asked.height)};
}

HostRect HostViewFrame::afterGrowth(HostSize growth) const
{
    HostRect frame = _asked;
    stretch(growth.width, _resizing.leftMargin, _resizing.width, _resizing.rightMargin, frame.x,
            frame.width);
    stretch(growth.height, _resizing.bottomMargin, _resizing.height, _resizing.topMargin, frame.y,
            frame.height);
    return frame;
}

}  // namespace vantorel
