#include "pageparts/PixelPainting.h"

#include "csscolor/GamutMapping.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

std::uint32_t byteOf(double fraction)
{
    // NaN becomes 0, too. The rounding is correct for positive values, and is inlined.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return fraction > 0 ? static_cast<std::uint32_t>(std::min(fraction, 1.0) * 255 + 0.5) : 0U;
}

std::uint32_t pixelOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    return vantorel::pixelOf(ColorTriple{rgb.red, rgb.green, rgb.blue});
}

/// An opacity in 256 parts, with which bytes are mixed without fractions.
std::uint32_t partsOf(double opacity)
{
    // As above.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return opacity > 0 ? static_cast<std::uint32_t>(std::min(opacity, 1.0) * 256 + 0.5) : 0U;
}

/// Multiplies all four bytes by parts of 256.
std::uint32_t faded(std::uint32_t pixel, std::uint32_t parts)
{
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32; shift += 8)
        result |= ((pixel >> shift & 255U) * parts + 128U) / 256U << shift;
    return result;
}

std::uint32_t mixedBytes(std::uint32_t below, std::uint32_t above, std::uint32_t parts)
{
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        const std::uint32_t a = below >> shift & 255U;
        const std::uint32_t b = above >> shift & 255U;
        result |= (a * (256U - parts) + b * parts + 128U) / 256U << shift;
    }
    return result;
}

/// Returns the distance from the edge of a rounded rectangle that fills a picture; negative inside.
double distanceFromEdge(HostPixelSize size, double radius, double x, double y)
{
    const double halfWidth = size.width / 2.0;
    const double halfHeight = size.height / 2.0;
    const double r = std::min({radius, halfWidth, halfHeight});
    const double dx = std::abs(x - halfWidth) - (halfWidth - r);
    const double dy = std::abs(y - halfHeight) - (halfHeight - r);
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    return outside + std::min(std::max(dx, dy), 0.0) - r;
}

/// The share of a pixel that lies inside of an edge at this distance from its middle.
double covered(double distance)
{
    return std::clamp(0.5 - distance, 0.0, 1.0);
}

double distanceFromPiece(PixelPlace at, PixelPlace a, PixelPlace b)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = dx * dx + dy * dy;
    const double along =
        length > 0 ? std::clamp(((at.x - a.x) * dx + (at.y - a.y) * dy) / length, 0.0, 1.0) : 0;
    const double x = at.x - a.x - along * dx;
    const double y = at.y - a.y - along * dy;
    return std::sqrt(x * x + y * y);
}

/// The cover of each pixel by a line, in 256 parts.
class LineMask {
public:
    explicit LineMask(HostPixelSize size)
        : _size(size),
          _covers(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)),
          _touched(static_cast<std::size_t>(size.height), {size.width, 0})
    {
    }

    void add(PixelPlace a, PixelPlace b, double halfWidth)
    {
        const double reach = halfWidth + 1;
        const int left = limit(std::min(a.x, b.x) - reach, _size.width);
        const int right = limit(std::max(a.x, b.x) + reach + 1, _size.width);
        const int top = limit(std::min(a.y, b.y) - reach, _size.height);
        const int bottom = limit(std::max(a.y, b.y) + reach + 1, _size.height);
        for (int y = top; y < bottom; ++y) {
            auto& [first, end] = _touched[static_cast<std::size_t>(y)];
            first = std::min(first, left);
            end = std::max(end, right);
            std::uint16_t* const row = rowAt(y);
            for (int x = left; x < right; ++x) {
                const double distance = distanceFromPiece({x + 0.5, y + 0.5}, a, b);
                const auto cover =
                    static_cast<std::uint16_t>(partsOf(covered(distance - halfWidth)));
                row[x] = std::max(row[x], cover);
            }
        }
    }
    void paint(HostPixels& pixels, std::uint32_t color, double opacity)
    {
        for (int y = 0; y < _size.height; ++y) {
            std::uint32_t* const row = pixels.row(y);
            const std::uint16_t* const covers = rowAt(y);
            const auto [first, end] = _touched[static_cast<std::size_t>(y)];
            for (int x = first; x < end; ++x)
                if (covers[x] > 0) row[x] = blended(row[x], color, covers[x] / 256.0 * opacity);
        }
    }

private:
    static int limit(double place, int most)
    {
        return static_cast<int>(std::clamp(place, 0.0, static_cast<double>(most)));
    }
    [[nodiscard]] std::uint16_t* rowAt(int y)
    {
        return _covers.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(_size.width);
    }

    HostPixelSize _size;
    std::vector<std::uint16_t> _covers;
    /// For each row, the columns that may be covered: from the first to before the second.
    std::vector<std::pair<int, int>> _touched;
};

PixelPlace between(PixelPlace a, PixelPlace b, double share)
{
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

}  // namespace

PixelLook lookOf(const HostCanvas& canvas, HostRect rect)
{
    PixelLook look;
    if (rect.width > 0) look.scale = canvas.pixelSizeOf(rect).width / rect.width;
    const HostColor window = canvas.themeColor(HostThemeColor::window);
    const HostColor text = canvas.themeColor(HostThemeColor::text);
    const auto lightness = [](const HostColor& color) {
        const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
        return rgb.red + rgb.green + rgb.blue;
    };
    look.isDark = lightness(text) > lightness(window);
    look.ground = blended(pixelOf(window), pixelOf(text), 0.05);
    look.base = pixelOf(canvas.themeColor(HostThemeColor::base));
    look.edge = canvas.themeColor(HostThemeColor::edge);
    return look;
}

std::uint32_t pixelOf(const ColorTriple& srgb)
{
    return HostPixels::opaque(byteOf(srgb[0]), byteOf(srgb[1]), byteOf(srgb[2]));
}

std::uint32_t blended(std::uint32_t pixel, std::uint32_t color, double opacity)
{
    const std::uint32_t alpha = pixel >> 24U;
    const std::uint32_t above =
        alpha == 255 ? color | blackPixel : faded(color | blackPixel, partsOf(alpha / 255.0));
    return mixedBytes(pixel, above, partsOf(opacity));
}

std::uint32_t checkAt(const PixelLook& look, int x, int y)
{
    const double side = 6 * std::max(look.scale, 0.1);
    const bool isLight = (static_cast<int>(x / side) + static_cast<int>(y / side)) % 2 == 0;
    if (look.isDark) return isLight ? 0xFF5A5A5AU : 0xFF3E3E3EU;
    return isLight ? 0xFFFFFFFFU : 0xFFD0D0D0U;
}

std::vector<std::uint8_t> hatchOf(HostPixelSize size, double scale)
{
    // In points.
    constexpr double period = 6;
    constexpr double width = 1;
    std::vector<std::uint8_t> lines(static_cast<std::size_t>(size.width) +
                                    static_cast<std::size_t>(size.height));
    for (std::size_t sum = 0; sum < lines.size(); ++sum) {
        const double points = static_cast<double>(sum) / std::max(scale, 0.1);
        lines[sum] = std::fmod(points, period) < width ? 1 : 0;
    }
    return lines;
}

void frameRounded(HostPixels& pixels, double radius, double lineWidth, const HostColor& line)
{
    const HostPixelSize size = pixels.size();
    const std::uint32_t color = pixelOf(line);
    const double opacity = line.alphaComponent();
    const auto paint = [&](std::uint32_t* from, const std::uint32_t* to, double distance) {
        // Pixels farther inside do not change.
        if (distance < -lineWidth - 1) return;
        const double lined = (1 - covered(distance + lineWidth)) * opacity;
        const std::uint32_t cover = partsOf(covered(distance));
        for (std::uint32_t* pixel = from; pixel < to; ++pixel)
            *pixel = faded(blended(*pixel, color, lined), cover);
    };
    // Between the corners, the distance is the same in all columns.
    const int corner =
        std::min(static_cast<int>(std::ceil(std::max(radius, lineWidth))) + 1, size.width / 2);
    for (int y = 0; y < size.height; ++y) {
        std::uint32_t* const row = pixels.row(y);
        for (int x = 0; x < corner; ++x) {
            const double distance = distanceFromEdge(size, radius, x + 0.5, y + 0.5);
            paint(row + x, row + x + 1, distance);
            paint(row + size.width - 1 - x, row + size.width - x, distance);
        }
        paint(row + corner, row + size.width - corner,
              distanceFromEdge(size, radius, size.width / 2.0, y + 0.5));
    }
}

void strokeLine(HostPixels& pixels, const std::vector<PixelPlace>& line, double width,
                std::uint32_t color, double opacity, double dash)
{
    LineMask mask(pixels.size());
    double walked = 0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const PixelPlace a = line[i - 1];
        const PixelPlace b = line[i];
        const double length = std::hypot(b.x - a.x, b.y - a.y);
        if (dash <= 0) {
            mask.add(a, b, width / 2);
        } else if (length > 0) {
            for (double begin = 0; begin < length;) {
                const double phase = std::fmod(walked + begin, 2 * dash);
                const double rest = (phase < dash ? dash : 2 * dash) - phase;
                const double end = std::min(begin + std::max(rest, 1e-3), length);
                if (phase < dash)
                    mask.add(between(a, b, begin / length), between(a, b, end / length), width / 2);
                begin = end;
            }
        }
        walked += length;
    }
    mask.paint(pixels, color, opacity);
}

HostPixels markPicture(HostPixelSize size, double scale, std::uint32_t fill)
{
    const double outer = 1.5 * scale;
    const double ring = 2 * scale;
    const double inner = scale;
    const double radius = std::min(size.width, size.height) / 2.0;
    HostPixels pixels(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const double distance = distanceFromEdge(size, radius, x + 0.5, y + 0.5);
            std::uint32_t pixel = blended(blackPixel, whitePixel, covered(distance + outer));
            pixel = blended(pixel, blackPixel, covered(distance + outer + ring));
            pixel = blended(pixel, fill, covered(distance + outer + ring + inner));
            pixels.row(y)[x] = faded(pixel, partsOf(covered(distance)));
        }
    }
    return pixels;
}

HostPixels trackPicture(HostPixelSize size, bool isVertical, double inset, const PixelLook& look,
                        const TrackColors& colors)
{
    HostPixels pixels(size);
    const int length = isVertical ? size.height : size.width;
    const double room = std::max(length - 2 * inset, 1.0);
    struct Column {
        std::uint32_t pixel;
        double alpha;
        bool isOutside;
    };
    std::vector<Column> columns;
    for (int i = 0; i < length; ++i) {
        const double along = isVertical ? length - i - 0.5 : i + 0.5;
        const TrackColor color = colors(std::clamp((along - inset) / room, 0.0, 1.0));
        columns.push_back({pixelOf(color.srgb), color.alpha, isOutsideSRGB(color.srgb)});
    }
    const std::vector<std::uint8_t> hatch = hatchOf(size, look.scale);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const Column& column = columns[static_cast<std::size_t>(isVertical ? y : x)];
            std::uint32_t pixel = column.pixel;
            if (column.alpha < 1) pixel = blended(checkAt(look, x, y), pixel, column.alpha);
            if (column.isOutside &&
                hatch[static_cast<std::size_t>(x) + static_cast<std::size_t>(y)] != 0)
                pixel = blended(pixel, blackPixel, hatchOnColors);
            pixels.row(y)[x] = pixel;
        }
    }
    frameRounded(pixels, std::min(size.width, size.height) / 2.0, look.scale, look.edge);
    return pixels;
}

}  // namespace vantorel
