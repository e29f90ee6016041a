#pragma once

#include "csscolor/ColorConversions.h"
#include "host/HostCanvas.h"
#include "host/HostPixels.h"

#include <cstdint>
#include <functional>
#include <vector>

/// Painting with smooth edges into pictures of pixels. Lengths and places are in pixels of the
/// picture, from its upper left corner.
namespace vantorel {

inline constexpr std::uint32_t blackPixel = HostPixels::opaque(0, 0, 0);
inline constexpr std::uint32_t whitePixel = HostPixels::opaque(255, 255, 255);

/// The colours and measures of a picture.
struct PixelLook {
    /// Device pixels per point.
    double scale = 1;
    /// The ground of what cannot be shown.
    std::uint32_t ground = 0;
    /// The ground of fields.
    std::uint32_t base = 0;
    HostColor edge = HostColor::blackColor();
    bool isDark = false;
    bool operator==(const PixelLook&) const = default;
};

/// Returns the look for a canvas on which `rect` is painted.
[[nodiscard]] PixelLook lookOf(const HostCanvas& canvas, HostRect rect);

/// Returns the opaque pixel of a colour, with channels clipped to sRGB.
[[nodiscard]] std::uint32_t pixelOf(const ColorTriple& srgb);

/// Lays `color` over a pixel with an opacity of 0..1. The result is as opaque as the pixel.
[[nodiscard]] std::uint32_t blended(std::uint32_t pixel, std::uint32_t color, double opacity);

/// Returns for each sum of x and y of a picture whether pixels there are on one of the slanted
/// lines that mark what cannot be shown.
[[nodiscard]] std::vector<std::uint8_t> hatchOf(HostPixelSize size, double scale);
/// How strongly the lines are painted on colours, and on the ground.
inline constexpr double hatchOnColors = 0.35;
inline constexpr double hatchOnGround = 0.16;

/// Returns the pixel of the squares that shine through translucent colours.
[[nodiscard]] std::uint32_t checkAt(const PixelLook& look, int x, int y);

/// Gives a picture round corners and a line, which may be translucent, just inside its edge.
void frameRounded(HostPixels& pixels, double radius, double lineWidth, const HostColor& line);

struct PixelPlace {
    double x = 0;
    double y = 0;
};

/// Strokes a line with round ends. A dash is as long as the gap after it; 0 means a solid line. No
/// pixel is painted twice.
void strokeLine(HostPixels& pixels, const std::vector<PixelPlace>& line, double width,
                std::uint32_t color, double opacity, double dash);

/// Returns a round or rounded mark for a place among colours: `fill` in a white and a black ring.
[[nodiscard]] HostPixels markPicture(HostPixelSize size, double scale, std::uint32_t fill);

/// A colour of a track.
struct TrackColor {
    ColorTriple srgb{};
    double alpha = 1;
};
/// Returns the colour at a fraction of a track.
using TrackColors = std::function<TrackColor(double fraction)>;

/// Returns a track with round ends that shows the colours to which it leads, from left to right or
/// from below. `inset` is how far from the ends the fractions 0 and 1 are. Colours outside sRGB are
/// hatched; squares shine through translucent ones.
[[nodiscard]] HostPixels trackPicture(HostPixelSize size, bool isVertical, double inset,
                                      const PixelLook& look, const TrackColors& colors);

}  // namespace vantorel
