#include "color/ColorMeasures.h"

#include "color/ChannelConversion.h"

#include <cmath>

namespace vantorel {
namespace {

bool isExactChannel(double channel)
{
    const auto step = static_cast<double>(truncatedSigned(channel * 255));
    return channel - step / 255 < exactnessLimit;
}

}  // namespace

bool exactHexColor(const std::optional<HostColor>& color)
{
    const auto rgb = color ? color->calibratedRGB() : std::nullopt;
    return rgb && isExactChannel(rgb->red) && isExactChannel(rgb->green) &&
           isExactChannel(rgb->blue);
}

double distanceBetweenPoints(double x1, double y1, double x2, double y2)
{
    const double dx = x1 - x2;
    const double dy = y1 - y2;
    return std::sqrt(dx * dx + dy * dy);
}

}  // namespace vantorel
