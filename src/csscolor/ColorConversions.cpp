#include "csscolor/ColorConversions.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantorel {
namespace {

// The matrices are those of CSS Color 4, "Sample code for Color Conversions".
// clang-format off
constexpr ColorMatrix linearSRGBToXYZ{{
    {506752.0 / 1228815,  87881.0 / 245763,   12673.0 /   70218},
    { 87098.0 /  409605, 175762.0 / 245763,   12673.0 /  175545},
    {  7918.0 /  409605,  87881.0 / 737289, 1001167.0 / 1053270},
}};
constexpr ColorMatrix xyzToLinearSRGB{{
    {  12831.0 /   3959,    -329.0 /    214, -1974.0 /   3959},
    {-851781.0 / 878810, 1648619.0 / 878810, 36519.0 / 878810},
    {    705.0 /  12673,   -2585.0 /  12673,   705.0 /    667},
}};
constexpr ColorMatrix d50ToD65{{
    { 0.955473421488075,    -0.02309845494876471,   0.06325924320057072 },
    {-0.0283697093338637,    1.0099953980813041,    0.021041441191917323},
    { 0.012314014864481998, -0.020507649298898964,  1.330365926242124   },
}};
constexpr ColorMatrix d65ToD50{{
    { 1.0479297925449969,    0.022946870601609652, -0.05019226628920524 },
    { 0.02962780877005599,   0.9904344267538799,   -0.017073799063418826},
    {-0.009243040646204504,  0.015055191490298152,  0.7518742814281371  },
}};
constexpr ColorMatrix xyzToLMS{{
    {0.8190224379967030, 0.3619062600528904, -0.1288737815209879},
    {0.0329836539323885, 0.9292868615863434,  0.0361446663506424},
    {0.0481771893596242, 0.2642395317527308,  0.6335478284694309},
}};
constexpr ColorMatrix lmsToXYZ{{
    { 1.2268798758459243, -0.5578149944602171,  0.2813910456659647},
    {-0.0405757452148008,  1.1122868032803170, -0.0717110580655164},
    {-0.0763729366746601, -0.4214933324022432,  1.5869240198367816},
}};
constexpr ColorMatrix lmsToOklab{{
    {0.2104542683093140,  0.7936177747023054, -0.0040720430116193},
    {1.9779985324311684, -2.4285922420485799,  0.4505937096174110},
    {0.0259040424655478,  0.7827717124575296, -0.8086757549230774},
}};
constexpr ColorMatrix oklabToLMS{{
    {1.0,  0.3963377773761749,  0.2158037573099136},
    {1.0, -0.1055613458156586, -0.0638541728258133},
    {1.0, -0.0894841775298119, -1.2914855480194092},
}};
constexpr ColorTriple d50White{0.3457 / 0.3585, 1.0, (1.0 - 0.3457 - 0.3585) / 0.3585};
// clang-format on

constexpr double labKappa = 24389.0 / 27;
constexpr double labEpsilon = 216.0 / 24389;
constexpr double fullTurn = 360;

constexpr ColorMatrix product(const ColorMatrix& a, const ColorMatrix& b)
{
    ColorMatrix result{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            for (std::size_t i = 0; i < 3; ++i)
                result[row][column] += a[row][i] * b[i][column];
    return result;
}

constexpr ColorMatrix lmsToLinearSRGB = product(xyzToLinearSRGB, lmsToXYZ);

template <typename Function>
ColorTriple each(const ColorTriple& triple, Function function)
{
    return {function(triple[0]), function(triple[1]), function(triple[2])};
}

}  // namespace

ColorTriple multiplied(const ColorMatrix& matrix, const ColorTriple& vector)
{
    ColorTriple product{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            product[row] += matrix[row][column] * vector[column];
    }
    return product;
}

double normalizedHue(double degrees)
{
    const double hue = std::fmod(degrees, fullTurn);
    const double positive = hue < 0 ? hue + fullTurn : hue;
    // For tiny negative angles, the sum is rounded to a full turn.
    return positive < fullTurn ? positive : 0;
}

double linearFromSRGB(double encoded)
{
    const double size = std::abs(encoded);
    const double linear = size <= 0.04045 ? size / 12.92 : std::pow((size + 0.055) / 1.055, 2.4);
    return std::copysign(linear, encoded);
}

double srgbFromLinear(double linear)
{
    const double size = std::abs(linear);
    const double encoded =
        size > 0.0031308 ? 1.055 * std::pow(size, 1 / 2.4) - 0.055 : 12.92 * size;
    return std::copysign(encoded, linear);
}

ColorTriple linearFromSRGB(const ColorTriple& encoded)
{
    return each(encoded, [](double value) { return linearFromSRGB(value); });
}

ColorTriple srgbFromLinear(const ColorTriple& linear)
{
    return each(linear, [](double value) { return srgbFromLinear(value); });
}

ColorTriple xyzFromLinearSRGB(const ColorTriple& linear)
{
    return multiplied(linearSRGBToXYZ, linear);
}

ColorTriple linearSRGBFromXYZ(const ColorTriple& xyz)
{
    return multiplied(xyzToLinearSRGB, xyz);
}

ColorTriple xyzFromXYZD50(const ColorTriple& xyz)
{
    return multiplied(d50ToD65, xyz);
}

ColorTriple xyzD50FromXYZ(const ColorTriple& xyz)
{
    return multiplied(d65ToD50, xyz);
}

ColorTriple xyzD50FromLab(const ColorTriple& lab)
{
    const double y = (lab[0] + 16) / 116;
    const ColorTriple f{lab[1] / 500 + y, y, y - lab[2] / 200};
    ColorTriple xyz{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double cube = f[i] * f[i] * f[i];
        xyz[i] = (cube > labEpsilon ? cube : (116 * f[i] - 16) / labKappa) * d50White[i];
    }
    return xyz;
}

ColorTriple labFromXYZD50(const ColorTriple& xyz)
{
    ColorTriple f{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double part = xyz[i] / d50White[i];
        f[i] = part > labEpsilon ? std::cbrt(part) : (labKappa * part + 16) / 116;
    }
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

ColorTriple oklabFromXYZ(const ColorTriple& xyz)
{
    const auto root = [](double value) { return std::cbrt(value); };
    return multiplied(lmsToOklab, each(multiplied(xyzToLMS, xyz), root));
}

ColorTriple xyzFromOklab(const ColorTriple& oklab)
{
    const auto cube = [](double value) { return value * value * value; };
    return multiplied(lmsToXYZ, each(multiplied(oklabToLMS, oklab), cube));
}

ColorTriple oklabFromSRGB(const ColorTriple& srgb)
{
    return oklabFromXYZ(xyzFromLinearSRGB(linearFromSRGB(srgb)));
}

ColorTriple srgbFromOklab(const ColorTriple& oklab)
{
    return srgbFromLinear(linearSRGBFromXYZ(xyzFromOklab(oklab)));
}

const ColorMatrix& coneRootsFromOklab()
{
    return oklabToLMS;
}

const ColorMatrix& linearSRGBFromCones()
{
    return lmsToLinearSRGB;
}

ColorTriple polarFromRectangular(const ColorTriple& rectangular)
{
    const auto [lightness, a, b] = rectangular;
    const double degrees = std::atan2(b, a) * 180 / std::numbers::pi;
    return {lightness, std::hypot(a, b), normalizedHue(degrees)};
}

ColorTriple rectangularFromPolar(const ColorTriple& polar)
{
    const auto [lightness, chroma, hue] = polar;
    const double angle = normalizedHue(hue) * std::numbers::pi / 180;
    return {lightness, chroma * std::cos(angle), chroma * std::sin(angle)};
}

ColorTriple srgbFromHSL(const ColorTriple& hsl)
{
    const double hue = normalizedHue(hsl[0]);
    const double lightness = hsl[2] / 100;
    const double range = hsl[1] / 100 * std::min(lightness, 1 - lightness);
    const auto channel = [&](double shift) {
        const double k = std::fmod(shift + hue / 30, 12);
        return lightness - range * std::max(-1.0, std::min({k - 3, 9 - k, 1.0}));
    };
    return {channel(0), channel(8), channel(4)};
}

namespace {

/// Conversions of greys leave differences between the channels that are below this.
constexpr double leastRange = 1e-6;

/// Returns the hue in degrees, which can be negative.
double hueOfSRGB(const ColorTriple& srgb)
{
    const auto [red, green, blue] = srgb;
    const auto [smallest, largest] = std::ranges::minmax(srgb);
    const double range = largest - smallest;
    if (!(range > leastRange)) return 0;
    constexpr double sixth = fullTurn / 6;
    if (largest == red) return (green - blue) / range * sixth;
    if (largest == green) return ((blue - red) / range + 2) * sixth;
    return ((red - green) / range + 4) * sixth;
}

}  // namespace

ColorTriple hslFromSRGB(const ColorTriple& srgb)
{
    const auto [smallest, largest] = std::ranges::minmax(srgb);
    const double lightness = (smallest + largest) / 2;
    if (!(largest - smallest > leastRange)) return {0, 0, lightness * 100};
    const double half = std::min(lightness, 1 - lightness);
    const double saturation = half != 0 ? (largest - lightness) / half : 0;
    // A lightness outside 0..1 makes the saturation negative. The opposite hue does the same.
    const double turn = saturation < 0 ? fullTurn / 2 : 0;
    return {normalizedHue(hueOfSRGB(srgb) + turn), std::abs(saturation) * 100, lightness * 100};
}

ColorTriple srgbFromHWB(const ColorTriple& hwb)
{
    const double white = hwb[1] / 100;
    const double black = hwb[2] / 100;
    if (white + black >= 1) {
        const double grey = white / (white + black);
        return {grey, grey, grey};
    }
    // The ends are exact: "1 - 0.3 - 0.5 + 0.3" is a little less than "1 - 0.5".
    return each(srgbFromHSL({hwb[0], 100, 50}),
                [&](double value) { return value * (1 - black) + (1 - value) * white; });
}

ColorTriple hwbFromSRGB(const ColorTriple& srgb)
{
    const auto [smallest, largest] = std::ranges::minmax(srgb);
    return {normalizedHue(hueOfSRGB(srgb)), smallest * 100, (1 - largest) * 100};
}

}  // namespace vantorel
