#include "colormath/ColorPlane.h"

#include "csscolor/ColorSpaces.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace vantorel {
namespace {

/// The plane is wider than the colours of Display P3, so that their border is seen.
constexpr double roomBesideBorder = 1.06;
/// Rounding errors of colours on a border. The darkest colours are not much brighter.
constexpr double tolerance = 1e-9;
constexpr double farChroma = 0.6;

/// Encodes linear light in bytes of sRGB without raising numbers to powers. The steps are finer
/// than the bytes even in the darkest colours, where the curve is steepest.
class ByteTable {
public:
    ByteTable()
    {
        for (std::size_t i = 0; i < _bytes.size(); ++i) {
            const double linear = static_cast<double>(i) / last;
            _bytes[i] = static_cast<std::uint8_t>(std::lround(srgbFromLinear(linear) * 255));
        }
    }
    [[nodiscard]] std::uint32_t operator()(float linear) const
    {
        const float place = std::clamp(linear * last + 0.5F, 0.0F, static_cast<float>(last));
        return _bytes[static_cast<std::size_t>(place)];
    }

private:
    static constexpr int last = 16384;
    std::array<std::uint8_t, last + 1> _bytes{};
};

const ByteTable& byteOfLinear()
{
    static const ByteTable table;
    return table;
}

/// Returns the matrix of a conversion that is one.
ColorMatrix matrixOf(ColorSpace from, ColorSpace to)
{
    ColorMatrix matrix{};
    for (std::size_t column = 0; column < 3; ++column) {
        ColorTriple unit{};
        unit[column] = 1;
        const ColorTriple image = convertedColor(unit, from, to);
        for (std::size_t row = 0; row < 3; ++row)
            matrix[row][column] = image[row];
    }
    return matrix;
}

const ColorMatrix& fromXYZD50(ScreenGamut gamut)
{
    static const ColorMatrix srgb = matrixOf(ColorSpace::xyzD50, ColorSpace::srgbLinear);
    static const ColorMatrix p3 = matrixOf(ColorSpace::xyzD50, ColorSpace::displayP3Linear);
    return gamut == ScreenGamut::srgb ? srgb : p3;
}

double thirdInRange(MixSpace space, double third)
{
    const MixRange range = rangeOf(space, axesOf(space).third);
    return range.isHue ? third : std::clamp(third, range.minimum, range.maximum);
}

/// The height of the middle of a row of pixels.
double heightOf(int row, int rows)
{
    return 1 - (row + 0.5) / rows;
}

}  // namespace

ColorPlane::ColorPlane(MixSpace space, double third)
    : _space(space),
      _third(thirdInRange(space, third)),
      _x(rangeOf(space, axesOf(space).x)),
      _y(rangeOf(space, axesOf(space).y))
{
    if (_space == MixSpace::oklch) preparePlaneOfHue();
}

void ColorPlane::preparePlaneOfHue()
{
    static const ColorMatrix toP3 = matrixOf(ColorSpace::srgbLinear, ColorSpace::displayP3Linear);
    const ColorTriple direction = rectangularFromPolar({0, 1, _third});
    // Without lightness, the roots are what the chroma adds to them.
    const ColorTriple roots = multiplied(coneRootsFromOklab(), direction);
    ColorTriple powers{1, 1, 1};
    for (std::size_t n = 0; n < _srgb.size(); ++n) {
        _srgb[n] = multiplied(linearSRGBFromCones(), powers);
        _displayP3[n] = multiplied(toP3, _srgb[n]);
        for (std::size_t i = 0; i < 3; ++i)
            powers[i] *= roots[i];
    }
    constexpr int samples = 64;
    double widest = 0;
    for (int i = 1; i < samples; ++i)
        widest = std::max(widest, mostChroma(_displayP3, static_cast<double>(i) / samples));
    _x = {0, widest * roomBesideBorder, false};
}

std::array<ColorTriple, 4> ColorPlane::cubicsAt(const Moments& moments, double lightness)
{
    const std::array<double, 4> factors{lightness * lightness * lightness,
                                        3 * lightness * lightness, 3 * lightness, 1};
    std::array<ColorTriple, 4> cubics = moments;
    for (std::size_t n = 0; n < cubics.size(); ++n)
        for (double& coefficient : cubics[n])
            coefficient *= factors[n];
    return cubics;
}

double ColorPlane::mostChroma(const Moments& moments, double lightness) const
{
    if (lightness <= 0 || lightness >= 1) return 0;
    const auto cubics = cubicsAt(moments, lightness);
    const auto isShown = [&](double chroma) {
        for (std::size_t i = 0; i < 3; ++i) {
            const double channel =
                ((cubics[3][i] * chroma + cubics[2][i]) * chroma + cubics[1][i]) * chroma +
                cubics[0][i];
            if (channel < -tolerance || channel > 1 + tolerance) return false;
        }
        return true;
    };
    constexpr double stride = 0.02;
    double inside = 0;
    while (inside + stride < farChroma && isShown(inside + stride))
        inside += stride;
    double outside = inside + stride;
    constexpr int halvings = 18;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (inside + outside) / 2;
        (isShown(middle) ? inside : outside) = middle;
    }
    return inside;
}

ColorTriple ColorPlane::componentsAt(HostPoint place) const
{
    const MixAxes axes = axesOf(_space);
    ColorTriple components{};
    components[axes.x] = _x.valueAt(place.x);
    components[axes.y] = _y.valueAt(place.y);
    components[axes.third] = _third;
    return components;
}

HostPoint ColorPlane::placeOf(const ColorTriple& components) const
{
    const MixAxes axes = axesOf(_space);
    return {_x.fractionOf(components[axes.x]), _y.fractionOf(components[axes.y])};
}

ColorPlane::Span ColorPlane::shownSpan(ScreenGamut gamut, double y) const
{
    if (_space == MixSpace::oklch) {
        const Moments& moments = gamut == ScreenGamut::srgb ? _srgb : _displayP3;
        return {0, _x.fractionOf(mostChroma(moments, _y.valueAt(y)))};
    }
    if (_space == MixSpace::lab) return labSpan(gamut, y);
    return {0, 1};
}

/// With L and b, the channels are linear functions of X, and a rises with X.
ColorPlane::Span ColorPlane::labSpan(ScreenGamut gamut, double y) const
{
    const ColorTriple xyz = xyzD50FromLab({_third, 0, _y.valueAt(y)});
    double least = 0;
    double most = farChroma * 10;
    for (const auto& row : fromXYZD50(gamut)) {
        const double fixed = row[1] * xyz[1] + row[2] * xyz[2];
        const double first = (-tolerance - fixed) / row[0];
        const double second = (1 + tolerance - fixed) / row[0];
        least = std::max(least, std::min(first, second));
        most = std::min(most, std::max(first, second));
    }
    if (least >= most) return {};
    const auto fractionAt = [&](double x) {
        return _x.fractionOf(labFromXYZD50({x, xyz[1], xyz[2]})[1]);
    };
    return {fractionAt(least), fractionAt(most)};
}

std::vector<HostPoint> ColorPlane::borderOf(ScreenGamut gamut, int rows) const
{
    std::vector<HostPoint> border;
    if (_space != MixSpace::oklch && _space != MixSpace::lab) return border;
    std::vector<HostPoint> left;
    for (int row = 0; row <= rows; ++row) {
        const double y = static_cast<double>(row) / rows;
        const Span span = shownSpan(gamut, y);
        if (_space == MixSpace::oklch) {
            border.push_back({span.to, y});
        } else if (span.from < span.to) {
            border.push_back({span.to, y});
            left.push_back({span.from, y});
        }
    }
    border.insert(border.end(), left.rbegin(), left.rend());
    if (!left.empty()) border.push_back(border.front());
    return border;
}

HostPixels ColorPlane::picture(HostPixelSize size) const
{
    HostPixels pixels(size);
    switch (_space) {
        case MixSpace::oklch:
            paintOklch(pixels);
            break;
        case MixSpace::lab:
            paintLab(pixels);
            break;
        default:
            paintLinear(pixels);
            break;
    }
    return pixels;
}

void ColorPlane::paintOklch(HostPixels& pixels) const
{
    const ByteTable& byte = byteOfLinear();
    const int width = pixels.width();
    const float step = static_cast<float>(_x.maximum / std::max(1, width));
    for (int row = 0; row < pixels.height(); ++row) {
        const double lightness = heightOf(row, pixels.height());
        const auto cubics = cubicsAt(_srgb, lightness);
        const double widest = mostChroma(_displayP3, lightness);
        const int end = std::min(width, static_cast<int>(widest / _x.maximum * width) + 2);
        std::array<std::array<float, 3>, 4> c{};
        for (std::size_t n = 0; n < c.size(); ++n)
            for (std::size_t i = 0; i < 3; ++i)
                c[n][i] = static_cast<float>(cubics[n][i]);
        std::uint32_t* const line = pixels.row(row);
        for (int x = 0; x < end; ++x) {
            const float chroma = (static_cast<float>(x) + 0.5F) * step;
            const auto channel = [&](std::size_t i) {
                return byte(((c[3][i] * chroma + c[2][i]) * chroma + c[1][i]) * chroma + c[0][i]);
            };
            line[x] = HostPixels::opaque(channel(0), channel(1), channel(2));
        }
    }
}

/// X depends on the column alone, and Z on the row, so that a channel is a sum of the two.
void ColorPlane::paintLab(HostPixels& pixels) const
{
    using Channels = std::array<float, 3>;
    const ByteTable& byte = byteOfLinear();
    const ColorMatrix& matrix = fromXYZD50(ScreenGamut::srgb);
    const auto channelsOf = [&](const ColorTriple& xyz) {
        const ColorTriple linear = multiplied(matrix, xyz);
        return Channels{static_cast<float>(linear[0]), static_cast<float>(linear[1]),
                        static_cast<float>(linear[2])};
    };
    std::vector<Channels> columns;
    for (int x = 0; x < pixels.width(); ++x) {
        const double a = _x.valueAt((x + 0.5) / pixels.width());
        columns.push_back(channelsOf({xyzD50FromLab({_third, a, 0})[0], 0, 0}));
    }
    for (int row = 0; row < pixels.height(); ++row) {
        const double b = _y.valueAt(heightOf(row, pixels.height()));
        const ColorTriple xyz = xyzD50FromLab({_third, 0, b});
        const Channels fixed = channelsOf({0, xyz[1], xyz[2]});
        std::uint32_t* const line = pixels.row(row);
        for (std::size_t x = 0; x < columns.size(); ++x) {
            const auto channel = [&](std::size_t i) { return byte(columns[x][i] + fixed[i]); };
            line[x] = HostPixels::opaque(channel(0), channel(1), channel(2));
        }
    }
}

/// In HSL and HSV, the channels change evenly with the saturation.
void ColorPlane::paintLinear(HostPixels& pixels) const
{
    // Bytes with 16 binary places, rounded by a half.
    constexpr int places = 16;
    constexpr double one = 255.0 * (1 << places);
    constexpr int half = 1 << (places - 1);
    const int width = pixels.width();
    for (int row = 0; row < pixels.height(); ++row) {
        const double y = heightOf(row, pixels.height());
        const ColorTriple start = srgbFromMixSpace(_space, componentsAt({0, y}));
        const ColorTriple end = srgbFromMixSpace(_space, componentsAt({1, y}));
        std::array<int, 3> channel{};
        std::array<int, 3> step{};
        for (std::size_t i = 0; i < 3; ++i) {
            const double growth = (end[i] - start[i]) / width;
            channel[i] = static_cast<int>((start[i] + growth / 2) * one) + half;
            step[i] = static_cast<int>(growth * one);
        }
        std::uint32_t* const line = pixels.row(row);
        for (int x = 0; x < width; ++x) {
            const auto byte = [&](std::size_t i) {
                const int whole = std::exchange(channel[i], channel[i] + step[i]) >> places;
                return static_cast<std::uint32_t>(std::clamp(whole, 0, 255));
            };
            const std::uint32_t red = byte(0);
            const std::uint32_t green = byte(1);
            line[x] = HostPixels::opaque(red, green, byte(2));
        }
    }
}

}  // namespace vantorel
