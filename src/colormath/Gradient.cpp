#include "colormath/Gradient.h"

#include <algorithm>

namespace vantorel {

CSSColorValue gradientColor(std::span<const CSSColorValue> stops, double position, ColorSpace space,
                            HueArc arc)
{
    if (stops.size() == 1) return converted(stops.front(), space);
    const std::size_t last = stops.size() - 1;
    const double place = std::clamp(position, 0.0, 1.0) * static_cast<double>(last);
    const std::size_t first = std::min(static_cast<std::size_t>(place), last - 1);
    const double share = place - static_cast<double>(first);
    return mixed(stops[first], stops[first + 1], share, space, arc);
}

}  // namespace vantorel
