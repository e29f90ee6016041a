#include "mix/PlanePicture.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

// In points.
constexpr double cornerRadius = 6;
constexpr double dashLength = 3.5;
constexpr double darkLine = 3;
constexpr double lightLine = 1.25;

/// The pixels of a row whose middle is in a span: from the first to before the second.
std::pair<int, int> columnsOf(ColorPlane::Span span, int width)
{
    if (!(span.from < span.to)) return {0, 0};
    const auto column = [width](double x) {
        return static_cast<int>(
            std::clamp(std::ceil(x * width - 0.5), 0.0, static_cast<double>(width)));
    };
    return {column(span.from), column(span.to)};
}

void markHidden(HostPixels& pixels, const ColorPlane& plane, const PixelLook& look)
{
    const std::uint32_t onGround = look.isDark ? whitePixel : blackPixel;
    const std::vector<std::uint8_t> hatch = hatchOf(pixels.size(), look.scale);
    const std::uint32_t groundLine = blended(look.ground, onGround, hatchOnGround);
    for (int y = 0; y < pixels.height(); ++y) {
        const double height = 1 - (y + 0.5) / pixels.height();
        const auto [srgbFrom, srgbTo] =
            columnsOf(plane.shownSpan(ScreenGamut::srgb, height), pixels.width());
        const auto [p3From, p3To] =
            columnsOf(plane.shownSpan(ScreenGamut::displayP3, height), pixels.width());
        std::uint32_t* const row = pixels.row(y);
        for (int x = 0; x < pixels.width(); ++x) {
            if (x == srgbFrom && srgbFrom < srgbTo) x = srgbTo;
            if (x >= pixels.width()) break;
            const bool isOnLine =
                hatch[static_cast<std::size_t>(x) + static_cast<std::size_t>(y)] != 0;
            if (x < p3From || x >= p3To) {
                row[x] = isOnLine ? groundLine : look.ground;
            } else if (isOnLine) {
                row[x] = blended(row[x], blackPixel, hatchOnColors);
            }
        }
    }
}

void strokeBorder(HostPixels& pixels, const ColorPlane& plane, ScreenGamut gamut,
                  const PixelLook& look)
{
    constexpr int pixelsPerPoint = 2;
    std::vector<PixelPlace> line;
    for (const HostPoint& place :
         plane.borderOf(gamut, std::max(8, pixels.height() / pixelsPerPoint))) {
        line.push_back({place.x * pixels.width(), (1 - place.y) * pixels.height()});
    }
    const double dash = gamut == ScreenGamut::displayP3 ? dashLength * look.scale : 0;
    constexpr double darkOpacity = 0.55;
    strokeLine(pixels, line, darkLine * look.scale, blackPixel, darkOpacity, 0);
    strokeLine(pixels, line, lightLine * look.scale, whitePixel, 1, dash);
}

}  // namespace

HostPixels planePicture(const ColorPlane& plane, HostPixelSize size, const PixelLook& look)
{
    HostPixels pixels = plane.picture(size);
    if (plane.space() == MixSpace::oklch || plane.space() == MixSpace::lab) {
        markHidden(pixels, plane, look);
        strokeBorder(pixels, plane, ScreenGamut::displayP3, look);
        strokeBorder(pixels, plane, ScreenGamut::srgb, look);
    }
    frameRounded(pixels, cornerRadius * look.scale, look.scale, look.edge);
    return pixels;
}

}  // namespace vantorel
