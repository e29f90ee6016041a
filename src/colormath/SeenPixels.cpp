#include "colormath/SeenPixels.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

SeenPixels::SeenPixels(ColorVision vision)
{
    for (std::size_t channel = 0; channel < _parts.size(); ++channel) {
        for (std::size_t value = 0; value < _parts[channel].size(); ++value) {
            ColorTriple light{};
            light[channel] = linearFromSRGB(static_cast<double>(value) / 255);
            const ColorTriple seen = seenInLinearLight(vision, light);
            for (std::size_t i = 0; i < seen.size(); ++i)
                _parts[channel][value][i] =
                    static_cast<std::int32_t>(std::lround(seen[i] * lightSteps));
        }
    }
    for (std::size_t i = 0; i < _encoded.size(); ++i) {
        const double value = srgbFromLinear(static_cast<double>(i) / lightSteps);
        _encoded[i] = static_cast<std::uint8_t>(std::lround(value * 255));
    }
}

std::uint32_t SeenPixels::seen(std::uint32_t pixel) const
{
    const Part& red = _parts[0][pixel >> 16 & 0xff];
    const Part& green = _parts[1][pixel >> 8 & 0xff];
    const Part& blue = _parts[2][pixel & 0xff];
    std::uint32_t result = pixel >> 24;
    for (std::size_t i = 0; i < 3; ++i) {
        // The model does not keep to sRGB.
        const std::int32_t light = std::clamp(red[i] + green[i] + blue[i], 0, lightSteps);
        result = result << 8 | _encoded[static_cast<std::size_t>(light)];
    }
    return result;
}

void SeenPixels::replace(std::span<std::uint32_t> pixels) const
{
    // Windows are mostly plain surfaces.
    std::uint32_t last = 0;
    std::uint32_t lastSeen = seen(last);
    for (std::uint32_t& pixel : pixels) {
        if (pixel != last) {
            last = pixel;
            lastSeen = seen(pixel);
        }
        pixel = lastSeen;
    }
}

}  // namespace vantorel
