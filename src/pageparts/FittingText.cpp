#include "pageparts/FittingText.h"

#include <algorithm>

namespace vantorel {
namespace {

// In points.
/// Smaller texts cannot be read.
constexpr double leastSize = 7;
constexpr double step = 0.5;
/// Of a product and a quotient of the same numbers.
constexpr double tolerance = 1e-9;

}  // namespace

HostText fittingText(HostDesktop& desktop, HostText text, double room)
{
    const double width = desktop.sizeOfText(text).width;
    if (width <= room) return text;
    text.pointSize = std::max(leastSize, text.pointSize * room / width);
    // Hosts round the size of a font, perhaps upwards.
    while (text.pointSize > leastSize && desktop.sizeOfText(text).width > room + tolerance)
        text.pointSize = std::max(leastSize, text.pointSize - step);
    return text;
}

}  // namespace vantorel
