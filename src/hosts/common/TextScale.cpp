#include "hosts/common/TextScale.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

double textScaleForFontHeight(double pixels)
{
    // 10 points at 96 dots per inch, the default of desktops.
    constexpr double usualHeight = 10 * 96 / 72.0;
    constexpr double step = 0.25;
    constexpr double largest = 3;
    // Slightly less than a step counts as the step: 150 % of 10 points is 20 pixels after rounding.
    const double steps = std::floor(pixels / usualHeight / step + 0.1);
    return std::clamp(steps * step, 1.0, largest);
}

int fittedTextSize(int fullSize, double needed, double room)
{
    constexpr double smallest = 0.7;
    const double ratio = needed > 0 ? room / needed : 1;
    return ratio < 1 && ratio >= smallest ? static_cast<int>(fullSize * ratio) : fullSize;
}

}  // namespace vantorel
