#include "pageparts/FittingText.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Smaller texts cannot be read. In points.
constexpr double leastSize = 7;

}  // namespace

HostText fittingText(HostDesktop& desktop, HostText text, double room)
{
    const double width = desktop.sizeOfText(text).width;
    if (width > room) text.pointSize = std::max(leastSize, text.pointSize * room / width);
    return text;
}

}  // namespace vantorel
