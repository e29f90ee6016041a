#include "csscolor/GamutMapping.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vantorel {
namespace {

constexpr double justNoticeableDifference = 0.02;
constexpr double chromaPrecision = 0.0001;

bool fitsWithin(const ColorTriple& srgb, double tolerance)
{
    return std::ranges::all_of(srgb, [tolerance](double channel) {
        return channel >= -tolerance && channel <= 1 + tolerance;
    });
}

/// The deltaE OK (CSS Color 4, "Sample code for ΔE2000 and ΔEOK Color Differences"): the distance
/// in Oklab.
double difference(const ColorTriple& oklab1, const ColorTriple& oklab2)
{
    return std::hypot(oklab1[0] - oklab2[0], oklab1[1] - oklab2[1], oklab1[2] - oklab2[2]);
}

/// Returns the distance between a colour, given in both spaces, and its clipped version.
double differenceByClipping(const ColorTriple& linear, const ColorTriple& oklab)
{
    return difference(oklabFromXYZ(xyzFromLinearSRGB(clippedToSRGB(linear))), oklab);
}

}  // namespace

bool isOutsideSRGB(const ColorTriple& srgb)
{
    constexpr double halfStep = 0.5 / 255;
    return !fitsWithin(srgb, halfStep);
}

ColorTriple clippedToSRGB(const ColorTriple& srgb)
{
    ColorTriple clipped = srgb;
    for (double& channel : clipped)
        channel = std::clamp(channel, 0.0, 1.0) + 0.0;  // + 0.0 makes a plain zero of -0
    return clipped;
}

ColorTriple mappedIntoSRGB(const ColorTriple& srgb)
{
    if (!isOutsideSRGB(srgb)) return clippedToSRGB(srgb);
    return srgbByReducedChroma(oklabFromSRGB(srgb));
}

ColorTriple srgbByReducedChroma(const ColorTriple& oklab)
{
    const ColorTriple& origin = oklab;
    if (origin[0] >= 1) return {1, 1, 1};
    if (origin[0] <= 0) return {0, 0, 0};

    // Clipping affects the same colours in linear light as in encoded values, so the search works
    // in linear light. Encoding would take most of its time.
    ColorTriple linear = linearSRGBFromXYZ(xyzFromOklab(origin));
    if (differenceByClipping(linear, origin) >= justNoticeableDifference) {
        // This ends for any chroma, since all chromas that become the smallest one are those of
        // colours near sRGB, below 1, where the precision is within the reach of a double.
        const ColorTriple polar = polarFromRectangular(origin);
        const ColorTriple direction = rectangularFromPolar({polar[0], 1, polar[2]});
        double smallest = 0;
        double largest = polar[1];
        bool smallestFits = true;
        while (largest - smallest > chromaPrecision) {
            const double chroma = (smallest + largest) / 2;
            const ColorTriple current{polar[0], chroma * direction[1], chroma * direction[2]};
            const ColorTriple currentLinear = linearSRGBFromXYZ(xyzFromOklab(current));
            if (smallestFits && fitsWithin(currentLinear, 0)) {
                smallest = chroma;
                continue;
            }
            linear = currentLinear;
            const double distance = differenceByClipping(linear, current);
            if (distance >= justNoticeableDifference) {
                largest = chroma;
            } else if (justNoticeableDifference - distance < chromaPrecision) {
                break;
            } else {
                smallestFits = false;
                smallest = chroma;
            }
        }
    }
    return clippedToSRGB(srgbFromLinear(linear));
}

namespace {

/// `std::nullopt` for a pattern, or if a channel is not finite.
std::optional<ColorTriple> finiteChannels(const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return std::nullopt;
    const ColorTriple srgb{rgb->red, rgb->green, rgb->blue};
    const auto isFinite = [](double channel) { return std::isfinite(channel); };
    return std::ranges::all_of(srgb, isFinite) ? std::optional(srgb) : std::nullopt;
}

}  // namespace

bool isOutsideSRGB(const HostColor& color)
{
    const auto srgb = finiteChannels(color);
    return srgb && isOutsideSRGB(*srgb);
}

bool isOutsideDisplayP3(const HostColor& color)
{
    const auto srgb = finiteChannels(color);
    // The same tolerance as for sRGB.
    return srgb && isOutsideSRGB(convertedColor(*srgb, ColorSpace::srgb, ColorSpace::displayP3));
}

HostColor mappedIntoSRGB(const HostColor& color)
{
    const auto srgb = finiteChannels(color);
    if (!srgb) return color;
    const auto [red, green, blue] = mappedIntoSRGB(*srgb);
    return HostColor::colorWithCalibratedRed(red, green, blue, color.alphaComponent());
}

CSSColorValue mappedIntoSRGB(const CSSColorValue& color)
{
    CSSColorValue mapped;
    mapped.alpha = color.alpha;
    const ColorTriple srgb = srgbFrom(color.space, color.components);
    if (!isOutsideSRGB(srgb)) {
        mapped.components = clippedToSRGB(srgb);
    } else {
        // Not by way of sRGB, which would lose the lightness of huge chromas.
        mapped.components =
            srgbByReducedChroma(convertedColor(color.components, color.space, ColorSpace::oklab));
    }
    return mapped;
}

}  // namespace vantorel
