#include "hosts/common/PixelFrames.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

int rounded(double x)
{
    // Wider than any screen, yet small enough for toolkits' own sums.
    constexpr double farthest = 1e8;
    return static_cast<int>(std::lround(std::clamp(x, -farthest, farthest)));
}

}  // namespace

HostPoint viewPoint(PixelPoint inWidget, HostRect bounds, double scale)
{
    return {inWidget.x / scale + bounds.x, bounds.maxY() - inWidget.y / scale};
}

PixelPoint pixelPoint(HostPoint inView, HostRect bounds, double scale)
{
    return {(inView.x - bounds.x) * scale, (bounds.maxY() - inView.y) * scale};
}

PixelRect pixelFrame(HostRect frame, HostRect superviewBounds, double scale)
{
    const PixelPoint upperLeft = pixelPoint({frame.x, frame.maxY()}, superviewBounds, scale);
    const PixelPoint lowerRight = pixelPoint({frame.maxX(), frame.y}, superviewBounds, scale);
    const int left = rounded(upperLeft.x);
    const int top = rounded(upperLeft.y);
    return {left, top, rounded(lowerRight.x) - left, rounded(lowerRight.y) - top};
}

bool isInSight(const HostView& view, double scale)
{
    if (view.superview() == nullptr || view.isParked()) return false;
    const HostRect room = view.superview()->bounds();
    const PixelRect place = pixelFrame(view.frame(), room, scale);
    return place.x < room.width * scale && place.x + place.width > 0 &&
           place.y < room.height * scale && place.y + place.height > 0 && place.width > 0 &&
           place.height > 0;
}

}  // namespace vantorel
